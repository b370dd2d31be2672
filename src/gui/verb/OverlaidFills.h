#pragma once
#include <juce_graphics/juce_graphics.h>

#include <vector>

namespace halcyra
{

/** A path and the translucent colour that fills it. */
struct OverlaidFill
{
    juce::Path path;
    juce::Colour colour;
};

/** Fills paths one over the other in an RGB image in memory, with the pixels that JUCE's renderer would give, but each
    pixel is written once, in its blended colour. The image shows an area of the picture that the transform makes of
    the paths. Within evenGround what lies below is of one colour, whatever the image held; elsewhere the image holds
    it. */
void overlayFills (juce::Image& image, juce::Rectangle<int> area, juce::Rectangle<int> evenGround, juce::Colour ground,
                   const std::vector<OverlaidFill>& fills, const juce::AffineTransform& transform);

}
