#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** The two predicates of planar algorithms, exact for all finite coordinates, so that no input can make an algorithm
    contradict itself. z is ignored. Any thread. */
namespace qel
{

/** 1 if a, b, c turn left, -1 if right, 0 if they are collinear. */
[[nodiscard]] int orientation (const Point3& a, const Point3& b, const Point3& c) noexcept;

/** 1 if d lies inside the circle through a, b, c (which turn left), -1 if outside, 0 if on it. */
[[nodiscard]] int inCircle (const Point3& a, const Point3& b, const Point3& c, const Point3& d) noexcept;

}
