#include "gui/plane/LumoComponent.h"

#include <utility>

namespace lumo
{

namespace
{

constexpr const char* openGLRendererName = "OpenGL Renderer";
constexpr double smoothing = 0.1;

/** JUCE leaves a new context current on the render thread shared by all windows. If the context is destroyed before its
    first frame, that thread releases it only when the next one is made current, long after it was freed. Each frame
    makes the context current again, so it can be released now. */
struct ReleaseNewContext : juce::OpenGLRenderer
{
    void newOpenGLContextCreated() override { juce::OpenGLContext::deactivateCurrentContext(); }
    void renderOpenGL() override {}
    void openGLContextClosing() override {}
};

ReleaseNewContext releaseNewContext;

double now() noexcept { return juce::Time::getMillisecondCounterHiRes(); }

}

/** Paints nothing, behind all children, to be notified of every frame: JUCE skips the paint of a component that its
    children cover. */
class Component::FrameMark : public juce::Component
{
public:
    explicit FrameMark (lumo::Component& componentToTime) : owner (componentToTime)
    {
        constexpr int everywhere = 1 << 15;
        setBounds (0, 0, everywhere, everywhere);
        setInterceptsMouseClicks (false, false);
        setAccessible (false);
        setPaintingIsUnclipped (true);
        owner.addAndMakeVisible (*this, 0);
    }
    void paint (juce::Graphics& g) override { owner.frameBegins (g.getClipBounds()); }

private:
    lumo::Component& owner;
};

Component::Component (const juce::String& name) : juce::Component (name) { applyLookAndFeel(); }

Component::~Component()
{
    if (openGLContext != nullptr)
        openGLContext->detach();
    setLookAndFeel (nullptr);
}

void Component::SetLookAndFeelVersion (const juce::String& text)
{
    if (text == "v2" || text == "V2")
        lookAndFeelHolder.version = 0;
    else if (text == "v3" || text == "V3")
        lookAndFeelHolder.version = 1;
    applyLookAndFeel();
}

void Component::applyLookAndFeel()
{
    if (lookAndFeelHolder.version == 0)
        setLookAndFeel (lookAndFeelHolder.v2);
    else
        setLookAndFeel (lookAndFeelHolder.v3);
}

void Component::SetOpenGLEnabled (bool enabled)
{
    openGLIsWanted = enabled;
    if (openGLContext != nullptr)
        openGLContext->detach();
    attachOpenGL();
}

void Component::attachOpenGL()
{
    const auto* peer = getPeer();
    const bool canAttach = isVisible() && peer != nullptr && peer->getNativeHandle() != nullptr;
    if (! openGLIsWanted || ! canAttach || IsOpenGLEnabled())
        return;
    if (openGLContext == nullptr) {
        openGLContext = std::make_unique<juce::OpenGLContext>();
        openGLContext->setRenderer (&releaseNewContext);
    }
    openGLContext->setContinuousRepainting (true);
    openGLContext->attachTo (*this);
}

void Component::parentHierarchyChanged() { attachOpenGL(); }

void Component::visibilityChanged()
{
    if (isVisible())
        attachOpenGL();
    else if (openGLContext != nullptr)
        openGLContext->detach();
}

bool Component::IsOpenGLEnabled() const noexcept
{
    return openGLContext != nullptr && openGLContext->getTargetComponent() != nullptr;
}

void Component::SetShowFps (bool show)
{
    if (showFps == show)
        return;
    showFps = show;
    isTiming = overlayIsDue = paintsOverlayAlone = false;
    frameMark = show ? std::make_unique<FrameMark> (*this) : nullptr;
    repaint();
}

/** Frames requested only to refresh the overlay are not counted by it. */
void Component::frameBegins (juce::Rectangle<int> area)
{
    paintsOverlayAlone = std::exchange (overlayIsDue, false) && overlayArea().contains (area);
    if (paintsOverlayAlone)
        isTiming = false;
    else
        BeginPaintTiming();
}

void Component::BeginPaintTiming() noexcept
{
    if (! showFps || std::exchange (isTiming, true))
        return;
    paintStartTime = now();
}

void Component::EndPaintTiming() noexcept
{
    if (! std::exchange (isTiming, false))
        return;
    const double end = now();
    const double sinceLast = end - lastPaintTime;
    lastPaintTime = end;
    renderTime += (end - paintStartTime - renderTime) * smoothing;
    if (sinceLast > 0) // two paints within one clock tick have no rate
        frameRate += (1000.0 / sinceLast - frameRate) * smoothing;
}

juce::StringArray Component::GetRendererNames() const
{
    juce::StringArray names;
    if (auto* peer = getPeer())
        names = peer->getAvailableRenderingEngines();
    names.add (openGLRendererName);
    return names;
}

juce::String Component::GetRendererName() const
{
    if (IsOpenGLEnabled())
        return openGLRendererName;
    if (auto* peer = getPeer())
        return peer->getAvailableRenderingEngines()[peer->getCurrentRenderingEngine()];
    return {};
}

juce::Font Component::MakeFont (const juce::String& face, const juce::String& style, float height)
{
    const auto words = juce::StringArray::fromTokens (style, false);
    int flags = juce::Font::plain;
    if (words.contains ("bold"))
        flags |= juce::Font::bold;
    if (words.contains ("italic"))
        flags |= juce::Font::italic;
    if (words.contains ("underlined"))
        flags |= juce::Font::underlined;
    return { face, height, flags };
}

juce::Font Component::MakeFont (float height) { return { "Lucida Grande", height, juce::Font::plain }; }

juce::Rectangle<int> Component::overlayArea() const
{
    const int width = getWidth() < 800 ? getWidth() / 4 : 200;
    const int height = getHeight() < 400 ? getHeight() / 4 : 100;
    return { getWidth() - width, 0, width, height };
}

void Component::paintOverChildren (juce::Graphics& g)
{
    const auto* parent = getParentComponent();
    isTiming = false; // the frame is over, timed or not
    if (! showFps || (parent != nullptr && dynamic_cast<const juce::TopLevelWindow*> (parent) == nullptr))
        return;
    const auto area = overlayArea();
    if (! std::exchange (paintsOverlayAlone, false)) { // this frame may paint a part of it, or none
        overlayIsDue = true;
        repaint (area);
    }
    g.setColour (juce::Colours::white.withAlpha (0.5f));
    g.fillRect (area);

    const juce::StringArray lines{ juce::String (getWidth()) + " x " + juce::String (getHeight()),
                                   "render time : " + juce::String (renderTime, 2) + " ms",
                                   juce::String (frameRate, 1) + " fps", "renderer : " + GetRendererName() };
    g.setColour (juce::Colours::black);
    g.setFont (MakeFont ("Arial", "plain", 11.0f));
    g.drawFittedText (lines.joinIntoString (juce::NewLine::getDefault()), area, juce::Justification::centred,
                      lines.size());
}

}
