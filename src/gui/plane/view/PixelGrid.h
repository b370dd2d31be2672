#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

namespace lumo::Plane
{

/** Maps component pixels to screen pixels, up to whole screen pixels: screen = component * scale + phase. At 125 or 150
    percent a component may begin in the middle of a pixel. */
struct PixelGrid
{
    /** For a component about to be painted with this context. */
    static PixelGrid Of (const juce::Component& component, const juce::Graphics& g);

    [[nodiscard]] juce::Point<float> ToScreen (juce::Point<float> place) const noexcept
    {
        return place * scale + phase;
    }
    /** All screen pixels that a part of the component touches. */
    [[nodiscard]] juce::Rectangle<int> ToScreen (juce::Rectangle<int> area) const noexcept;
    /** For a graphics context in screen pixels with its origin at the pixel that contains the component's corner. */
    [[nodiscard]] juce::AffineTransform Transform() const noexcept;

    /** Draws an image in screen pixels, one to one. */
    void DrawPixels (juce::Graphics& g, const juce::Image& picture, juce::Point<int> topLeftOnScreen) const;

    bool operator== (const PixelGrid& other) const noexcept { return scale == other.scale && phase == other.phase; }

    float scale = 1;
    juce::Point<float> phase; // 0 to 1
};

}
