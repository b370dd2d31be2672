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

/** The outline of a room, seen from above. */
struct Shoebox
{
    qel::Point3Array corners{ qel::Point3Array::defaultRectangle() };
    bool visible = false;
};

struct Background
{
    juce::Colour colour{ 0xFFB5B5B5 };
};

/** The rectangle that is dragged open to select sources, in pixels. */
struct Lasso
{
    juce::Rectangle<float> area;
    bool active = false;
};

}
