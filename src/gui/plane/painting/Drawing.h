#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

/** Drawing helpers for both layers. */
namespace lumo::Plane
{

/** A square about a point. */
[[nodiscard]] juce::Rectangle<float> SquareAt (juce::Point<float> centre, float side);

/** Whether a square about a point intersects the clip. */
[[nodiscard]] bool IsWanted (const juce::Graphics& g, juce::Point<float> centre, float side);

/** Centres text in a square about a point; longer text ends in an ellipsis. */
void DrawTextAt (juce::Graphics& g, const juce::String& text, juce::Point<float> centre, float side);

/** Rounds halves away from zero, unlike juce::String. */
[[nodiscard]] juce::String MetresText (float metres, int decimals);
/** "(x,y,z)" in metres; under the circular constraint, the angle that a drag changes, in whole degrees. */
[[nodiscard]] juce::String CoordinatesText (const qel::Point3& position, const Surface& surface);
void DrawCoordinates (juce::Graphics& g, const qel::Point3& position, juce::Rectangle<int> area, juce::Colour colour,
                      const Surface& surface);

void DrawIcon (juce::Graphics& g, const Icon& icon, juce::Point<float> centre, float size, const Surface& surface);
void DrawListener (juce::Graphics& g, const Surface& surface);

}
