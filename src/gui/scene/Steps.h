#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** How one drag step changes a position: it moves or rotates in the plane of the view. Metres and radians. */
namespace lumo::Plane
{

/** The step between two points, without the axis hidden by the view, because the view may have changed in between. */
[[nodiscard]] qel::Point3 StepInView (const qel::Point3& from, const qel::Point3& to, bool topView) noexcept;

/** The angle from one point to the next about the origin. */
[[nodiscard]] float TurnInView (const qel::Point3& from, const qel::Point3& to, bool topView) noexcept;

/** Rotates a point about the origin; keeps the hidden coordinate, and all coordinates if the angle is 0. */
[[nodiscard]] qel::Point3 Turned (const qel::Point3& point, float angle, bool topView) noexcept;

}
