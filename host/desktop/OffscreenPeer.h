#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace desktop
{

/** A component's window in memory. Events enter through ComponentPeer's handleMouseEvent, handleMouseWheel and
    handleKeyPress, so JUCE does hit testing, hovering, focus and capture; painting goes into an image. */
class OffscreenPeer : public juce::ComponentPeer
{
public:
    OffscreenPeer (juce::Component& component, int styleFlags);
    ~OffscreenPeer() override;

    /** The window's contents, repainted where invalid. */
    const juce::Image& picture();

    using ComponentPeer::globalToLocal;
    using ComponentPeer::localToGlobal;
    juce::Point<float> localToGlobal (juce::Point<float> point) override;
    juce::Point<float> globalToLocal (juce::Point<float> point) override;

    void setBounds (const juce::Rectangle<int>& newBounds, bool isNowFullScreen) override;
    juce::Rectangle<int> getBounds() const override { return bounds; }
    bool contains (juce::Point<int> position, bool trueIfInAChildWindow) const override;
    OptionalBorderSize getFrameSizeIfPresent() const override { return OptionalBorderSize (juce::BorderSize<int>()); }
    juce::BorderSize<int> getFrameSize() const override { return {}; }

    void setVisible (bool shouldBeVisible) override;
    void setMinimised (bool shouldBeMinimised) override { minimised = shouldBeMinimised; }
    bool isMinimised() const override { return minimised; }
    void toFront (bool takeKeyboardFocus) override;
    bool isFocused() const override { return focusedPeer == this; }
    void grabFocus() override;

    void repaint (const juce::Rectangle<int>& area) override { outOfDate.add (area); }
    void performAnyPendingRepaintsNow() override;
    juce::StringArray getAvailableRenderingEngines() override { return { "Software Renderer" }; }

    void* getNativeHandle() const override { return nullptr; }
    void setTitle (const juce::String&) override {}
    void setFullScreen (bool) override {}
    bool isFullScreen() const override { return false; }
    void setIcon (const juce::Image&) override {}
    bool setAlwaysOnTop (bool) override { return true; }
    void toBehind (ComponentPeer*) override {}
    void setAlpha (float) override {}

private:
    void textInputRequired (juce::Point<int>, juce::TextInputTarget&) override {}

    static OffscreenPeer* focusedPeer;

    juce::Rectangle<int> bounds;
    juce::Image image;
    juce::RectangleList<int> outOfDate;
    bool minimised = false;
};

}
