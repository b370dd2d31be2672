#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

namespace lumo::Plane
{

/** All that seldom moves: what a cached picture may hold. Hull, triangulation and projection are up to date. */
void DrawStaticLayer (juce::Graphics& g, const Surface& surface, const Scene& scene);
/** The colour and its frame alone. */
void DrawBackground (juce::Graphics& g, const Surface& surface);

}
