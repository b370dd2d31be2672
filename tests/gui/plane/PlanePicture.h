#pragma once
#include "gui/plane/PlaneComponent.h"

/** The plane as it would be painted now. */
[[nodiscard]] inline juce::Image Picture (lumo::PlaneComponent& plane)
{
    juce::Image image (juce::Image::ARGB, plane.getWidth(), plane.getHeight(), true, juce::SoftwareImageType());
    juce::Graphics g (image);
    plane.paintEntireComponent (g, true);
    return image;
}

/** The pixels that differ, as a rectangle. */
[[nodiscard]] inline juce::Rectangle<int> Difference (const juce::Image& a, const juce::Image& b)
{
    juce::Rectangle<int> changed;
    for (int y = 0; y < a.getHeight(); ++y)
        for (int x = 0; x < a.getWidth(); ++x)
            if (a.getPixelAt (x, y) != b.getPixelAt (x, y))
                changed = changed.getUnion ({ x, y, 1, 1 });
    return changed;
}
