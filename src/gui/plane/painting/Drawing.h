#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

/** What both layers draw with. */
namespace lumo::Plane
{

/** A square about a point. */
[[nodiscard]] juce::Rectangle<float> SquareAt (juce::Point<float> centre, float side);

/** Whether anything about a point can be seen; objects far outside are not drawn at all. */
[[nodiscard]] bool IsInSight (const ViewTransform& view, juce::Point<float> centre, float side);
/** The same for a source or a speaker of that size in pixels, with its name and its coordinates. */
[[nodiscard]] bool IsObjectInSight (const ViewTransform& view, juce::Point<float> centre, float size);

/** Centred in a square about a point; what does not fit ends in an ellipsis. */
void DrawTextAt (juce::Graphics& g, const juce::String& text, juce::Point<float> centre, float side);

/** With halves away from zero, as in all texts of the system. */
[[nodiscard]] juce::String MetresText (float metres, int decimals);
/** "(x,y,z)" in metres; with the circular constraint the angle that a drag changes, in whole degrees. */
[[nodiscard]] juce::String CoordinatesText (const qel::Point3& position, const Surface& surface);
void DrawCoordinates (juce::Graphics& g, const qel::Point3& position, juce::Point<int> topLeft, const Surface& surface);

void DrawIcon (juce::Graphics& g, const juce::Drawable& icon, juce::Point<float> centre, float size);
void DrawListener (juce::Graphics& g, const Surface& surface);

}
