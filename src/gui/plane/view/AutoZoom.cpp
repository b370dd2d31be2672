#include "gui/plane/view/AutoZoom.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

namespace
{

constexpr float step = 0.01f;

/** By x and y, even in the front view; the last of equals, or the first source if none is visible. */
const Source& FarthestSource (const qel::Vector<Source>& sources)
{
    const Source* farthest = &sources[0];
    float reach = -1.0f;
    for (const auto& source : sources) {
        const float own = std::max (std::abs (source.position.x), std::abs (source.position.y));
        if (source.visible && own >= reach) {
            farthest = &source;
            reach = own;
        }
    }
    return *farthest;
}

/** A view for trying zooms. */
class Trial
{
public:
    Trial (const ViewTransform& present, const qel::Point3& wanted) : view (present), point (wanted) {}

    void Apply (float zoom)
    {
        view.zoom = view.ClampZoom (zoom);
        view.Update (view.width, view.height);
    }
    [[nodiscard]] float Zoom() const { return view.zoom; }
    [[nodiscard]] bool OnScreen() const
    {
        const auto place = view.ToScreen (point);
        return place.x >= 0 && place.x <= static_cast<float> (view.width) && place.y >= 0 &&
               place.y <= static_cast<float> (view.height);
    }

private:
    ViewTransform view;
    qel::Point3 point;
};

void Grow (Trial& trial)
{
    while (trial.OnScreen() && trial.Zoom() < ViewTransform::largestZoom)
        trial.Apply (trial.Zoom() + step);
    trial.Apply (trial.Zoom() - 2 * step);
}

void Shrink (Trial& trial)
{
    while (! trial.OnScreen()) {
        const float before = trial.Zoom();
        if (before <= 0.1f)
            return trial.Apply (before - 2 * step);
        trial.Apply (before - step);
        if (trial.Zoom() >= before) // the smallest zoom that the margin allows
            return;
    }
}

}

float FittingZoom (const Scene& scene, const ViewTransform& view)
{
    if (scene.sources.empty())
        return view.zoom;
    Trial trial (view, FarthestSource (scene.sources).position);
    if (trial.OnScreen())
        Grow (trial);
    else
        Shrink (trial);
    const bool onlyRounding = std::abs (trial.Zoom() - view.zoom) < step / 10;
    return onlyRounding ? view.zoom : trial.Zoom();
}

}
