#include "gui/plane/painting/Drawing.h"

#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/Text.h"
#include "gui/plane/painting/Extents.h"

#include <cmath>

namespace lumo::Plane
{

juce::Rectangle<float> SquareAt (juce::Point<float> centre, float side)
{
    return juce::Rectangle<float> (side, side).withCentre (centre);
}

bool IsWanted (const juce::Graphics& g, juce::Point<float> centre, float side)
{
    return g.clipRegionIntersects (SquareAt (centre, side).getSmallestIntegerContainer());
}

void DrawTextAt (juce::Graphics& g, const juce::String& text, juce::Point<float> centre, float side)
{
    g.drawText (text, SquareAt (centre, side), juce::Justification::centred, true);
}

juce::String MetresText (float metres, int decimals)
{
    return FromCore (qel::String (static_cast<double> (metres), decimals));
}

juce::String CoordinatesText (const qel::Point3& position, const Surface& surface)
{
    if (! surface.options.circularConstraint) {
        return "(" + MetresText (position.x, 1) + "," + MetresText (position.y, 1) + "," + MetresText (position.z, 1) +
               ")";
    }
    if (! surface.viewTransform.topView)
        return juce::String (static_cast<int> (qel::elevation (position)));
    const float degrees = std::atan2 (position.y, position.x) * qel::degreesPerRadian;
    return juce::String (static_cast<int> (Orientation::WrapDegrees (degrees)));
}

void DrawCoordinates (juce::Graphics& g, const qel::Point3& position, juce::Rectangle<int> area, juce::Colour colour,
                      const Surface& surface)
{
    const Caption::Style style{ 10, false, static_cast<float> (area.getWidth()) };
    surface.lines->get().Draw (g, CoordinatesText (position, surface), style, colour, area.getCentre(), surface.pixels);
}

void DrawIcon (juce::Graphics& g, const Icon& icon, juce::Point<float> centre, float size, const Surface& surface)
{
    surface.icons->get().Draw (g, icon, SquareAt (centre, size), surface.pixels);
}

void DrawListener (juce::Graphics& g, const Surface& surface)
{
    const auto& listener = surface.listener;
    const auto& view = surface.viewTransform;
    if (g.clipRegionIntersects (ExtentOf (listener, surface)))
        surface.icons->get().Draw (g, listener.Icon (view.topView),
                                   SquareAt (listener.screenPosition, SizeOf (listener, view)), surface.pixels,
                                   view.topView ? listener.yaw : 0.0f);
}

}
