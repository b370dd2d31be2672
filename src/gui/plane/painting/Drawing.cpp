#include "gui/plane/painting/Drawing.h"

#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/LumoComponent.h"
#include "gui/plane/Text.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

namespace
{

constexpr int coordinatesWidth = 100;

}

juce::Rectangle<float> SquareAt (juce::Point<float> centre, float side)
{
    return juce::Rectangle<float> (side, side).withCentre (centre);
}

bool IsInSight (const ViewTransform& view, juce::Point<float> centre, float side)
{
    return SquareAt (centre, side).intersects (view.Bounds().toFloat());
}

bool IsObjectInSight (const ViewTransform& view, juce::Point<float> centre, float size)
{
    return IsInSight (view, centre, std::max (6 * size, static_cast<float> (coordinatesWidth)));
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

void DrawCoordinates (juce::Graphics& g, const qel::Point3& position, juce::Point<int> topLeft, const Surface& surface)
{
    g.setFont (lumo::Component::MakeFont (10.0f));
    g.drawText (CoordinatesText (position, surface), topLeft.x, topLeft.y, coordinatesWidth, 20,
                juce::Justification::centred, true);
}

void DrawIcon (juce::Graphics& g, const juce::Drawable& icon, juce::Point<float> centre, float size)
{
    icon.drawWithin (g, SquareAt (centre, size), juce::RectanglePlacement::centred, 1.0f);
}

void DrawListener (juce::Graphics& g, const Surface& surface)
{
    const auto& listener = surface.listener;
    const auto& view = surface.viewTransform;
    const auto size = static_cast<float> (view.PixelSize (listener.proportion));
    const auto centre = listener.screenPosition;
    if (! listener.visible || ! IsInSight (view, centre, 2 * size))
        return;
    const juce::Graphics::ScopedSaveState state (g);
    if (view.topView)
        g.addTransform (juce::AffineTransform::rotation (listener.yaw, centre.x, centre.y));
    DrawIcon (g, listener.Icon (view.topView), centre, size);
}

}
