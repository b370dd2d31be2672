#include "gui/plane/objects/Area.h"

namespace lumo::Plane
{

namespace
{

template <typename ToPoint>
juce::Path Outline (const qel::Point3Array& points, ToPoint&& toPoint)
{
    juce::Path path;
    if (points.empty())
        return path;
    path.startNewSubPath (toPoint (points[0]));
    for (std::size_t i = 1; i < points.size(); ++i)
        path.lineTo (toPoint (points[i]));
    path.closeSubPath();
    return path;
}

}

void Area::SetPoints (const qel::Point3Array& corners, const ViewTransform& view)
{
    points = corners;
    worldPath = Outline (points, [] (const qel::Point3& p) { return juce::Point<float> (p.x, p.y); });
    UpdateScreen (view);
}

void Area::UpdateScreen (const ViewTransform& view)
{
    screenPath = Outline (points, [&] (const qel::Point3& p) { return OnScreen (view, p); });
    labelPosition = OnScreen (view, qel::barycentre (points));
}

bool Area::Contains (const qel::Point3& point) const { return worldPath.contains (point.x, point.y, 1.0f); }

}
