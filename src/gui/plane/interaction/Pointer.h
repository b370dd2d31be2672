#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** Pointer positions: the last press in pixels, and the last press or drag step in metres. */
struct Pointer
{
    juce::Point<float> lassoOrigin;
    qel::Point3 last;
};

}
