#include "gui/verb/ImpulseResponseComponent.h"

#include "reverb/EarlyGains.h"

#include <utility>

namespace lumo
{

namespace
{

constexpr int tickDistance = 20; // ms
constexpr float tickFontHeight = 12;
constexpr int tickTextsHeight = 16; // of the strip with the tick labels

const juce::Colour backgroundColour{ 0xFFB5B5B5 };
const juce::Colour tickColour{ 0xFF808080 };
const juce::Colour directColour = juce::Colours::black.withAlpha (0.5f);
const juce::Colour earlyColour = juce::Colour (0xFF008000).withAlpha (0.5f);
const juce::Colour clusterColour = juce::Colour (0xFF0000FF).withAlpha (0.5f);

/** A band's decay: a quadratic curve from the corner at its top left to its end at the bottom, with the control point
    at a proportion of its width. Built only as far as the right edge: long decays run thousands of almost flat pixels
    beyond it, the renderer's slowest case. */
juce::Path decayShape (juce::Point<float> corner, float width, float bottom, float control, float rightEdge)
{
    constexpr float segmentsOfAll = 32;         // keeps the polygon within a fiftieth of a pixel of the curve
    constexpr float controlHeight = 47.0f / 49; // of the height
    const float linear = 2 * control * width, square = width - linear, visible = rightEdge - corner.x;
    juce::Path path;
    if (visible <= 0 || width <= 0)
        return path;
    const float root = std::sqrt (linear * linear + 4 * square * visible);
    const float last = visible < width ? 2 * visible / (linear + root) : 1.0f; // where the curve meets the edge
    const int segments = juce::jmax (1, static_cast<int> (std::ceil (last * segmentsOfAll)));
    path.startNewSubPath (corner.x, bottom);
    for (int i = 0; i <= segments; ++i) {
        const float t = last * static_cast<float> (i) / static_cast<float> (segments);
        const float fall = 2 * t * (1 - t) * controlHeight + t * t;
        path.lineTo (corner.x + (linear + square * t) * t, corner.y + fall * (bottom - corner.y));
    }
    path.lineTo (std::min (corner.x + width, rightEdge), bottom);
    path.closeSubPath();
    return path;
}

void drawTap (juce::Graphics& g, const halcyra::ImpulseResponseScale& scale, float ms, float gain)
{
    const float x = scale.x (ms), top = scale.top (gain);
    if (x < scale.width + 1)
        g.fillRect (juce::Rectangle<float> (x - 0.5f, top, 1, scale.height - top));
}

}

ImpulseResponseComponent::ImpulseResponseComponent (std::uint32_t numinternals)
    : juce::Component ("ImpulseResponseComponent"),
      early (numinternals, 20, 40, 0.5f),
      cluster (numinternals, 20, 40, 0.5f),
      gains (early.getDelays().size())
{
    setOpaque (true);
    setTitle ("Impulse response");
    setHelpText ("Shows so many milliseconds: the cursor keys zoom.");
    setWantsKeyboardFocus (true);
    setSize (500, 200);
}

void ImpulseResponseComponent::store (float& field, float value, unsigned makesStale)
{
    if (field == value)
        return;
    const auto before = decayExtent();
    field = value;
    stale |= makesStale;
    if (makesStale == decay)
        repaint (before.getUnion (decayExtent()));
    else
        repaint();
}

/** All pixels that the decays may touch, with a margin for rounding at fractional scales. */
juce::Rectangle<int> ImpulseResponseComponent::decayExtent() const noexcept
{
    constexpr int room = 2;
    const auto corner = decayCorner();
    const auto lowest = juce::Point<float> (static_cast<float> (getWidth()), static_cast<float> (getHeight()));
    return juce::Rectangle<float> (corner, lowest).getSmallestIntegerContainer().expanded (room);
}

juce::Point<float> ImpulseResponseComponent::decayCorner() const noexcept
{
    const auto s = scale();
    return { s.x (shown.reverbStart), s.top (1) };
}

void ImpulseResponseComponent::setTr0 (float seconds) { store (shown.tr0, seconds, decay); }
void ImpulseResponseComponent::setTrl (float ratio) { store (shown.trl, ratio, decay); }
void ImpulseResponseComponent::setTrm (float ratio) { store (shown.trm, ratio, decay); }
void ImpulseResponseComponent::setTrh (float ratio) { store (shown.trh, ratio, decay); }
void ImpulseResponseComponent::setReverbStart (float ms) { store (shown.reverbStart, ms, decay); }

void ImpulseResponseComponent::setEarlyStart (float ms)
{
    store (shown.earlyStart, std::min (ms, shown.earlyEnd), earlyDelays | earlyGains);
}

void ImpulseResponseComponent::setEarlyEnd (float ms)
{
    store (shown.earlyEnd, std::max (ms, shown.earlyStart), earlyDelays | earlyGains);
}

void ImpulseResponseComponent::setEarlyDistr (float distribution)
{
    store (shown.earlyDistr, distribution, earlyDelays | earlyGains);
}

void ImpulseResponseComponent::setEarlyShape (float shape)
{
    store (shown.earlyShape, std::clamp (shape, 0.0f, 1.0f), earlyGains);
}

void ImpulseResponseComponent::setClusterStart (float ms)
{
    store (shown.clusterStart, std::max (1.0f, ms - shown.earlyStart), clusterDelays);
}

void ImpulseResponseComponent::setClusterEnd (float ms)
{
    store (shown.clusterEnd, std::max (1.0f, ms - shown.earlyEnd), clusterDelays);
}

void ImpulseResponseComponent::setClusterDistr (float distribution)
{
    store (shown.clusterDistr, distribution, clusterDelays);
}

halcyra::ImpulseResponseScale ImpulseResponseComponent::scale() const noexcept
{
    return { static_cast<float> (getWidth()), static_cast<float> (getHeight()), zoom };
}

void ImpulseResponseComponent::bringUpToDate (float pixelScale)
{
    if (std::exchange (decayPixelScale, pixelScale) != pixelScale)
        stale |= decay;
    if ((stale & earlyDelays) != 0)
        early.setMinMax (shown.earlyStart, shown.earlyEnd, shown.earlyDistr);
    if ((stale & clusterDelays) != 0)
        cluster.setMinMax (shown.clusterStart, shown.clusterEnd, shown.clusterDistr);
    if ((stale & earlyGains) != 0)
        halcyra::earlyGains (gains, shown.earlyShape, std::abs (shown.earlyEnd - shown.earlyStart), false);
    if ((stale & decay) != 0)
        buildDecay (pixelScale);
    if ((stale & ticks) != 0)
        buildTicks();
    stale = 0;
}

void ImpulseResponseComponent::buildDecay (float pixelScale)
{
    const auto s = scale();
    const auto corner = decayCorner();
    // Compares seconds with ms, which existing pictures depend on: takes effect only if the reverb starts within 30 ms.
    const float seconds = std::clamp (shown.tr0, 0.0f, shown.reverbStart);
    const auto shape = [&] (float ratio, float control) {
        return decayShape (corner, s.x (seconds * ratio * 1000), s.height, control, s.width);
    };
    const std::vector<halcyra::OverlaidFill> bands{
        { shape (shown.trl, 67.0f / 193), juce::Colour (0x80FF0000) },
        { shape (shown.trm, 42.0f / 134), juce::Colour (0x80AEFF00) },
        { shape (shown.trh, 37.0f / 84), juce::Colour (0x800057FF) },
    };
    juce::Rectangle<float> extent;
    for (const auto& band : bands)
        extent = extent.getUnion (band.path.getBounds());
    const auto toScreen = juce::AffineTransform::scale (pixelScale);
    const auto screen = getLocalBounds().toFloat().transformedBy (toScreen).getSmallestIntegerContainer();
    decayArea = extent.transformedBy (toScreen).getSmallestIntegerContainer().getIntersection (screen);
    if (decayArea.isEmpty()) {
        decayImage = {};
        return;
    }
    if (decayImage.getBounds() != decayArea.withZeroOrigin())
        decayImage = juce::Image (juce::Image::RGB, decayArea.getWidth(), decayArea.getHeight(), false,
                                  juce::SoftwareImageType());
    const auto evenGround = screen.reduced (static_cast<int> (std::ceil (pixelScale / 2)));
    {
        juce::Graphics g (decayImage);
        g.excludeClipRegion (evenGround - decayArea.getPosition());
        g.addTransform (toScreen.translated (-decayArea.getPosition().toFloat()));
        paintGround (g);
    }
    halcyra::overlayFills (decayImage, decayArea, evenGround, backgroundColour, bands, toScreen);
}

void ImpulseResponseComponent::paintGround (juce::Graphics& g) const
{
    g.setColour (backgroundColour);
    g.fillRect (getLocalBounds());
    g.setColour (juce::Colours::black);
    g.drawRect (getLocalBounds().toFloat().expanded (0.5f), 1); // centred on the edge: half of it is visible
}

void ImpulseResponseComponent::buildTicks()
{
    const auto s = scale();
    const juce::Font font (tickFontHeight);
    tickTexts.clear();
    for (int ms = tickDistance; static_cast<float> (ms) < s.span(); ms += tickDistance) {
        const auto t = static_cast<float> (ms);
        const juce::String text (t);
        if (s.x (t) + font.getStringWidthFloat (text) <= s.width) // skips labels cut by the edge
            tickTexts.addFittedText (font, text, s.x (t), 0, static_cast<float> (static_cast<int> (0.1f * s.width)),
                                     tickFontHeight, juce::Justification::top, 1, 0);
    }
}

void ImpulseResponseComponent::paint (juce::Graphics& g)
{
    if (! isVisible())
        return;
    bringUpToDate (g.getInternalContext().getPhysicalPixelScaleFactor());
    {
        const juce::Graphics::ScopedSaveState state (g);
        g.excludeClipRegion (coveredByDecay());
        paintGround (g);
    }
    paintDecay (g);
    paintTicks (g);
    paintTaps (g);
}

/** Where the decay image hides what is below, with a margin for the renderer's rounding. */
juce::Rectangle<int> ImpulseResponseComponent::coveredByDecay() const
{
    if (decayImage.isNull())
        return {};
    const auto area = decayArea.toFloat() / decayPixelScale;
    const auto up = [] (float x) { return static_cast<int> (std::ceil (x)); };
    const auto down = [] (float x) { return static_cast<int> (std::floor (x)); };
    return juce::Rectangle<int>::leftTopRightBottom (up (area.getX()), up (area.getY()), down (area.getRight()),
                                                     down (area.getBottom()))
        .reduced (decayPixelScale == 1.0f ? 0 : 1);
}

void ImpulseResponseComponent::paintDecay (juce::Graphics& g) const
{
    if (decayImage.isNull())
        return;
    g.setOpacity (1);
    g.drawImageTransformed (
        decayImage,
        juce::AffineTransform::translation (decayArea.getPosition().toFloat()).scaled (1 / decayPixelScale));
}

void ImpulseResponseComponent::paintTicks (juce::Graphics& g) const
{
    const auto s = scale();
    g.setColour (tickColour.withAlpha (0.2f));
    for (int ms = tickDistance; static_cast<float> (ms) < s.span(); ms += tickDistance)
        g.fillRect (juce::Rectangle<float> (s.x (static_cast<float> (ms)) - 0.5f, 0, 1, s.height));
    g.setColour (tickColour.withAlpha (0.6f));
    if (g.clipRegionIntersects ({ 0, 0, getWidth(), tickTextsHeight }))
        tickTexts.draw (g);
}

void ImpulseResponseComponent::paintTaps (juce::Graphics& g) const
{
    const auto s = scale();
    g.setColour (directColour);
    drawTap (g, s, 0, 1);

    const auto& earlyMs = early.getDelays();
    g.setColour (earlyColour);
    for (std::size_t i = 0; i < earlyMs.size(); ++i)
        drawTap (g, s, earlyMs[i], gains[i]);

    g.setColour (clusterColour);
    for (const float clusterMs : cluster.getDelays())
        for (const float ms : earlyMs)
            drawTap (g, s, clusterMs + ms, 1);
}

void ImpulseResponseComponent::resized() { stale |= decay | ticks; }

void ImpulseResponseComponent::mouseWheelMove (const juce::MouseEvent&, const juce::MouseWheelDetails& wheel)
{
    if (std::isfinite (wheel.deltaY))
        store (zoom, halcyra::ImpulseResponseScale::zoomed (zoom, wheel.deltaY), decay | ticks);
}

bool ImpulseResponseComponent::keyPressed (const juce::KeyPress& key)
{
    const bool in = key == juce::KeyPress::upKey || key == juce::KeyPress::rightKey;
    const bool out = key == juce::KeyPress::downKey || key == juce::KeyPress::leftKey;
    if (in || out)
        store (zoom, halcyra::ImpulseResponseScale::zoomed (zoom, in ? 1.0f : -1.0f), decay | ticks);
    return in || out;
}

/** The span of the time axis in ms, for screen readers. */
class ImpulseResponseComponent::ShownTime : public juce::AccessibilityValueInterface
{
public:
    explicit ShownTime (ImpulseResponseComponent& displayToSpeakFor) : display (displayToSpeakFor) {}

    bool isReadOnly() const override { return false; }
    double getCurrentValue() const override { return static_cast<double> (display.scale().span()); }
    juce::String getCurrentValueAsString() const override
    {
        return juce::String (juce::roundToInt (getCurrentValue())) + " ms";
    }
    void setValueAsString (const juce::String& ms) override { setValue (ms.getDoubleValue()); }
    void setValue (double ms) override
    {
        const auto range = getRange();
        const auto span = static_cast<float> (juce::jlimit (range.getMinimumValue(), range.getMaximumValue(), ms));
        display.store (display.zoom, halcyra::ImpulseResponseScale{ 0, 0, 1 }.span() / span, decay | ticks);
    }
    AccessibleValueRange getRange() const override
    {
        const auto spanAt = [] (float zoomed) {
            return static_cast<double> (halcyra::ImpulseResponseScale{ 0, 0, zoomed }.span());
        };
        return { { spanAt (halcyra::ImpulseResponseScale::greatestZoom),
                   spanAt (halcyra::ImpulseResponseScale::leastZoom) },
                 1 };
    }

private:
    ImpulseResponseComponent& display;
};

std::unique_ptr<juce::AccessibilityHandler> ImpulseResponseComponent::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (
        *this, juce::AccessibilityRole::slider, juce::AccessibilityActions{},
        juce::AccessibilityHandler::Interfaces{ std::make_unique<ShownTime> (*this) });
}

}
