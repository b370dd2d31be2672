#pragma once
#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** The picture in a PNG or JPEG file, whole or not at all: a file that is missing, damaged, cut short, of another kind,
    or that declares more pixels than memory should pay for gives a null image.

    It does not go through JUCE's readers: an error in a file makes those jump into a function that has returned, or
    carry on behind the error. */
[[nodiscard]] juce::Image ReadImage (const juce::File& file);

}
