#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

/** Bounding rectangle of the pixels that differ between two images of the same size. */
[[nodiscard]] inline juce::Rectangle<int> Difference (const juce::Image& a, const juce::Image& b)
{
    juce::Rectangle<int> changed;
    for (int y = 0; y < a.getHeight(); ++y)
        for (int x = 0; x < a.getWidth(); ++x)
            if (a.getPixelAt (x, y) != b.getPixelAt (x, y))
                changed = changed.getUnion ({ x, y, 1, 1 });
    return changed;
}

/** Whether they differ within an area. */
[[nodiscard]] inline bool differIn (juce::Rectangle<int> area, const juce::Image& a, const juce::Image& b)
{
    return ! Difference (a.getClippedImage (area), b.getClippedImage (area)).isEmpty();
}
