#include "gui/scene/Zoom.h"

#include "gui/scene/Finite.h"

#include <cmath>

namespace lumo::Plane
{

namespace
{

constexpr float step = 0.01f;

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

bool Zoom::Store (float factor)
{
    if (! AreFinite (factor) || locked || factor == view.zoom)
        return false;
    view.zoom = view.ClampZoom (factor);
    return true;
}

float Zoom::Fitting (const qel::Point3& point) const
{
    Trial trial (view, point);
    if (trial.OnScreen())
        Grow (trial);
    else
        Shrink (trial);
    const bool onlyRounding = std::abs (trial.Zoom() - view.zoom) < step / 10;
    return onlyRounding ? view.zoom : trial.Zoom();
}

}
