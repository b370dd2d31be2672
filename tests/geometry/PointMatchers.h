#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <ostream>

namespace qel
{

inline void PrintTo (const Point3& p, std::ostream* out) { *out << "(" << p.x << ", " << p.y << ", " << p.z << ")"; }

/** Compares each coordinate, relative to the size of the expected point. */
MATCHER_P2 (IsNear, expected, tolerance, "is near " + testing::PrintToString (expected))
{
    const Point3 d = arg - expected;
    const float size = std::max ({ 1e-3f, std::abs (expected.x), std::abs (expected.y), std::abs (expected.z) });
    return std::abs (d.x) <= tolerance * size && std::abs (d.y) <= tolerance * size &&
           std::abs (d.z) <= tolerance * size;
}

/** Within the precision of a few single-precision steps. */
inline auto isAbout (const Point3& expected) { return IsNear (expected, 2e-6f); }

}
