#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** Positions in the struct: three floats each, x y z in metres. */
namespace halcyra
{

[[nodiscard]] inline qel::Point3 pointIn (const float* triple) noexcept { return { triple[0], triple[1], triple[2] }; }

inline void storePoint (const qel::Point3& point, float* triple) noexcept
{
    triple[0] = point.x;
    triple[1] = point.y;
    triple[2] = point.z;
}

}
