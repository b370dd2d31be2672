#pragma once
#include "gui/plane/Ambrel4LookAndFeel.h"

#include <juce_opengl/juce_opengl.h>

#include <memory>

namespace lumo
{

/** Base of all visual components: selectable look, optional OpenGL context, and an overlay with frame statistics.
    Message thread. */
class Component : public juce::Component
{
public:
    explicit Component (const juce::String& name = {});
    ~Component() override;

    /** Applies the look "v2" or "V2", "v3" or "V3"; any other text keeps the present one. */
    virtual void SetLookAndFeelVersion (const juce::String& text);

    /** While on, JUCE renders this component continuously by OpenGL in its native window; windows in memory have
        nothing to render to. Hide the component before removing it from its window: a context detached later leaves a
        dangling listener in the window. */
    void SetOpenGLEnabled (bool enabled);
    /** True while a context is attached. */
    [[nodiscard]] bool IsOpenGLEnabled() const noexcept;

    /** Shows frame statistics; drawn only by a component without a parent, or directly in a top-level window. */
    void SetShowFps (bool show);
    [[nodiscard]] bool GetShowFps() const noexcept { return showFps; }

    /** A painter brackets its work with these; they do nothing while the statistics are off. With the end in
        paintOverChildren, timing starts with the frame, even if children cover everything the component paints. */
    void BeginPaintTiming() noexcept;
    void EndPaintTiming() noexcept;
    /** Smoothed paint time in milliseconds. */
    [[nodiscard]] double GetRenderTime() const noexcept { return renderTime; }
    /** Smoothed frame rate in frames per second. */
    [[nodiscard]] double GetFrameRate() const noexcept { return frameRate; }

    /** The peer's renderers, and "OpenGL Renderer". */
    [[nodiscard]] juce::StringArray GetRendererNames() const;
    /** The current renderer; empty without a window. */
    [[nodiscard]] juce::String GetRendererName() const;

    /** A font of this face; the style may contain "bold", "italic" and "underlined". */
    [[nodiscard]] static juce::Font MakeFont (const juce::String& face, const juce::String& style, float height);
    /** The interface's plain font. */
    [[nodiscard]] static juce::Font MakeFont (float height);

    void paintOverChildren (juce::Graphics& g) override;
    void parentHierarchyChanged() override;
    void visibilityChanged() override;

private:
    /** Looks are shared by all components of the process. */
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
    bool overlayIsDue = false, paintsOverlayAlone = false; // the overlay is repainted once after each frame
    double paintStartTime = 0, renderTime = 0, frameRate = 0, lastPaintTime = 0;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Component)
};

}
