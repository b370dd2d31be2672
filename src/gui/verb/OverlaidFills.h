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

/** Fills overlapping paths in an RGB memory image with the same pixels as JUCE's renderer, but writes each pixel only
    once, in its blended colour. The image shows `area` of the transformed paths. Within evenGround the background has
    one colour, whatever the image holds; elsewhere the image holds the background. */
void overlayFills (juce::Image& image, juce::Rectangle<int> area, juce::Rectangle<int> evenGround, juce::Colour ground,
                   const std::vector<OverlaidFill>& fills, const juce::AffineTransform& transform);

}
