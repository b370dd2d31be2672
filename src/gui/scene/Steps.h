#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** What one step of a drag does to a position: it moves or turns in the plane of the view. Metres and radians. */
namespace lumo::Plane
{

/** From one point to the next, without the axis hidden by the view: the view may have changed between the two. */
[[nodiscard]] qel::Point3 StepInView (const qel::Point3& from, const qel::Point3& to, bool topView) noexcept;

/** The angle from one point to the next about the origin. */
[[nodiscard]] float TurnInView (const qel::Point3& from, const qel::Point3& to, bool topView) noexcept;

/** A point turned about the origin; the coordinate hidden by the view stays, and so does every one at an angle of 0. */
[[nodiscard]] qel::Point3 Turned (const qel::Point3& point, float angle, bool topView) noexcept;

}
