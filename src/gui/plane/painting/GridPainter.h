#pragma once
#include "gui/plane/surface/Surface.h"

namespace lumo::Plane
{

void DrawGrid (juce::Graphics& g, const Surface& surface);
void DrawAngularDivisions (juce::Graphics& g, const Surface& surface);

}
