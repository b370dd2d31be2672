#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <juce_graphics/juce_graphics.h>

#include <vector>

namespace lumo::Plane
{

/** A named cross on the plane. */
struct Anchor
{
    juce::String name;
    qel::Point3 position;
    juce::Point<float> screenPosition;
};

struct Anchors
{
    static constexpr std::size_t largestCount = 8192;

    bool anchorsVisible = false;
    bool anchorsLabelVisible = false;
    std::vector<Anchor> items;
};

/** Outline of a room from above. */
struct Shoebox
{
    qel::Point3Array corners{ qel::Point3Array::defaultRectangle() };
    bool visible = false;
};

struct Background
{
    juce::Colour colour{ 0xFFB5B5B5 };
};

/** The selection rectangle for sources, in pixels. */
struct Lasso
{
    juce::Rectangle<float> area;
    bool active = false;
};

}
