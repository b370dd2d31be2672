#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** Where the pointer was: at the last press, in pixels, and at the last press or drag step, in metres. */
struct Pointer
{
    juce::Point<float> lassoOrigin;
    qel::Point3 last;
};

}
