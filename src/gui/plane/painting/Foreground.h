#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

namespace lumo::Plane
{

/** Everything that changes often, drawn in every frame over the static layer. */
void DrawForeground (juce::Graphics& g, const Surface& surface, const Scene& scene);

}
