#pragma once
#include "geometry/OrvaneDspPoint3.h"

namespace qel
{

/** Speakers projected onto the sphere of the farthest one, and the delays that compensate. */
struct SpeakerAlignment
{
    float radius = 0;     ///< metres
    Point3Array points;   ///< each speaker's place on the sphere
    Vector<float> delays; ///< milliseconds, at 343.2 m/s
};

/** A speaker at the origin stays there, with no delay. */
[[nodiscard]] SpeakerAlignment alignSpeakers (const Point3Array& speakers);

/** Intersects the line through p0 and p1 with a sphere: first in the direction of p1, then behind. Returns false and
    leaves both points unchanged if there is no intersection or p0 equals p1. */
[[nodiscard]] bool intersectLineAndSphere (const Point3& p0, const Point3& p1, const Point3& centre, float radius,
                                           Point3& first, Point3& second) noexcept;

}
