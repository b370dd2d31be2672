#pragma once
#include "gui/plane/Ambrel4LookAndFeel.h"

#include <juce_opengl/juce_opengl.h>

#include <memory>

namespace lumo
{

/** The base of all visual parts: a component with a choice of look, an optional OpenGL context, and an overlay of
    frame statistics. Message thread. */
class Component : public juce::Component
{
public:
    explicit Component (const juce::String& name = {});
    ~Component() override;

    /** "v2" and "V2", "v3" and "V3" choose a look, any other text keeps the present one. Applies it. */
    virtual void SetLookAndFeelVersion (const juce::String& text);

    /** While on, JUCE renders this component through OpenGL, frame after frame, in a native window. A window in memory
        has nothing that OpenGL could draw on. Hide the component before it leaves its window: a context that is
        detached later leaves its listener in the window, which calls it when it is gone. */
    void SetOpenGLEnabled (bool enabled);
    /** True while a context is attached. */
    [[nodiscard]] bool IsOpenGLEnabled() const noexcept;

    /** Shows the frame statistics; only a component with no parent, or right in a top-level window, draws them. */
    void SetShowFps (bool show);
    [[nodiscard]] bool GetShowFps() const noexcept { return showFps; }

    /** A painter brackets its work with these two; they do nothing while the statistics are off. One that ends in
        paintOverChildren is timed from the start of the frame, also when its children hide all that it paints itself. */
    void BeginPaintTiming() noexcept;
    void EndPaintTiming() noexcept;
    /** Milliseconds that a paint takes, smoothed. */
    [[nodiscard]] double GetRenderTime() const noexcept { return renderTime; }
    /** Frames in a second, smoothed. */
    [[nodiscard]] double GetFrameRate() const noexcept { return frameRate; }

    /** The peer's renderers, and "OpenGL Renderer". */
    [[nodiscard]] juce::StringArray GetRendererNames() const;
    /** The renderer in use; empty with no window. */
    [[nodiscard]] juce::String GetRendererName() const;

    /** A font of that face; the words "bold", "italic" and "underlined" in the style are heeded. */
    [[nodiscard]] static juce::Font MakeFont (const juce::String& face, const juce::String& style, float height);
    /** The plain font of the interface. */
    [[nodiscard]] static juce::Font MakeFont (float height);

    void paintOverChildren (juce::Graphics& g) override;
    void parentHierarchyChanged() override;
    void visibilityChanged() override;

private:
    /** One instance of each look serves all components of the process. */
    struct LookAndFeelHolder
    {
        int version = 0;
        juce::SharedResourcePointer<Ambrel4LookAndFeelV2> v2;
        juce::SharedResourcePointer<Ambrel4LookAndFeelV3> v3;
    };

    [[nodiscard]] juce::Rectangle<int> overlayArea() const;
    void frameBegins (juce::Rectangle<int> area);
    void applyLookAndFeel();
    void attachOpenGL();

    class FrameMark;

    std::unique_ptr<juce::OpenGLContext> openGLContext;
    std::unique_ptr<FrameMark> frameMark; // while the statistics are on
    LookAndFeelHolder lookAndFeelHolder;
    bool openGLIsWanted = false;
    bool showFps = false;
    bool isTiming = false;
    bool overlayIsDue = false, paintsOverlayAlone = false; // the overlay is painted once more after each frame
    double paintStartTime = 0, renderTime = 0, frameRate = 0, lastPaintTime = 0;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Component)
};

}
