#pragma once
#include "geometry/OrvaneDspPoint3.h"

namespace qel
{

/** Speakers moved out to the sphere of the farthest one, and the delays that make up for it. */
struct SpeakerAlignment
{
    float radius = 0;     ///< metres
    Point3Array points;   ///< where each speaker would stand on the sphere
    Vector<float> delays; ///< milliseconds, at 343.2 metres a second
};

/** A speaker at the origin stays there, with no delay. */
[[nodiscard]] SpeakerAlignment alignSpeakers (const Point3Array& speakers);

/** Where the line through p0 and p1 meets a sphere: first in the direction of p1, then behind. False, and both points
    untouched, if it does not, or if p0 and p1 are one point. */
[[nodiscard]] bool intersectLineAndSphere (const Point3& p0, const Point3& p1, const Point3& centre, float radius,
                                           Point3& first, Point3& second) noexcept;

}
