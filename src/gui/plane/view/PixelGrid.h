#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

namespace lumo::Plane
{

/** How the pixels of a component lie on those of the screen, up to whole pixels of the screen: screen = component *
    scale + phase. At 125 or 150 percent a component may well begin in the middle of a pixel. */
struct PixelGrid
{
    /** As the component is about to be painted there. */
    static PixelGrid Of (const juce::Component& component, const juce::Graphics& g);

    [[nodiscard]] juce::Point<float> ToScreen (juce::Point<float> place) const noexcept
    {
        return place * scale + phase;
    }
    /** All pixels of the screen that a part of the component touches. */
    [[nodiscard]] juce::Rectangle<int> ToScreen (juce::Rectangle<int> area) const noexcept;
    /** For a graphics context of screen pixels whose origin is the one that the component's corner lies in. */
    [[nodiscard]] juce::AffineTransform Transform() const noexcept;

    /** Draws a picture in screen pixels, one to one. */
    void DrawPixels (juce::Graphics& g, const juce::Image& picture, juce::Point<int> topLeftOnScreen) const;

    bool operator== (const PixelGrid& other) const noexcept { return scale == other.scale && phase == other.phase; }

    float scale = 1;
    juce::Point<float> phase; // 0 to 1
};

}
