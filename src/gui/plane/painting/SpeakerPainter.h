#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

/** The speakers and their derived geometry. Each function draws nothing unless its option is on. */
namespace lumo::Plane
{

void DrawSpeakerProjection (juce::Graphics& g, const Surface& surface, const Scene& scene);
void DrawTriangulation (juce::Graphics& g, const Surface& surface, const Scene& scene);
void DrawHull (juce::Graphics& g, const Surface& surface, const Scene& scene);
void DrawSpeakersRadius (juce::Graphics& g, const Surface& surface, const Scene& scene);
void DrawSpeakers (juce::Graphics& g, const Surface& surface, const Scene& scene);

}
