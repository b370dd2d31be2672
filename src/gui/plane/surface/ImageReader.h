#pragma once
#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** Reads a PNG or JPEG file completely or not at all: a null image if it is missing, damaged, truncated, of another
    kind, or declares an excessive number of pixels.

    Does not use JUCE's readers: after an error in a file those jump into a function that has returned, or continue
    reading. */
[[nodiscard]] juce::Image ReadImage (const juce::File& file);

}
