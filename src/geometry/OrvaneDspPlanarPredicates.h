#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** Signs of the two questions that planar algorithms ask, free of rounding for all finite coordinates, so that no
    input can lead an algorithm into a contradiction. Only x and y count. Any thread. */
namespace qel
{

/** 1 if a, b, c turn to the left, -1 if to the right, 0 if they lie in a line. */
[[nodiscard]] int orientation (const Point3& a, const Point3& b, const Point3& c) noexcept;

/** 1 if d lies inside the circle through a, b, c, which turn to the left; -1 if outside, 0 if on it. */
[[nodiscard]] int inCircle (const Point3& a, const Point3& b, const Point3& c, const Point3& d) noexcept;

}
