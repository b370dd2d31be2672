#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

namespace lumo::Plane
{

/** Everything that seldom changes, to be cached. Hull, triangulation and projection must be up to date. */
void DrawStaticLayer (juce::Graphics& g, const Surface& surface, const Scene& scene);
/** Only the colour and its frame. */
void DrawBackground (juce::Graphics& g, const Surface& surface);

}
