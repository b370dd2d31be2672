#include "gui/scene/Steps.h"

#include <cmath>

namespace lumo::Plane
{

namespace
{

float AngleInView (const qel::Point3& point, bool topView) noexcept
{
    return topView ? std::atan2 (point.y, point.x) : std::atan2 (point.z, point.x);
}

}

qel::Point3 StepInView (const qel::Point3& from, const qel::Point3& to, bool topView) noexcept
{
    auto step = to - from;
    (topView ? step.z : step.y) = 0;
    return step;
}

float TurnInView (const qel::Point3& from, const qel::Point3& to, bool topView) noexcept
{
    return AngleInView (to, topView) - AngleInView (from, topView);
}

qel::Point3 Turned (const qel::Point3& p, float angle, bool topView) noexcept
{
    if (angle == 0.0f)
        return p;
    const float c = std::cos (angle), s = std::sin (angle);
    if (topView)
        return { p.x * c - p.y * s, p.y * c + p.x * s, p.z };
    return { p.x * c - p.z * s, p.y, p.z * c + p.x * s };
}

}
