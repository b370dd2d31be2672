#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** Default layouts of sources and speakers: at distance 1, in the horizontal plane. */
namespace qel
{

/** Points at equal angles, clockwise, starting in front. Also the default layout of sources. */
[[nodiscard]] Point3Array ringLayout (std::size_t count);
/** The standard layout for 1 to 8 speakers; a ring for more. */
[[nodiscard]] Point3Array defaultSpeakerLayout (std::size_t count);

/** Copies the points as x, y, z triples; triples must have room for 3 floats per point. */
void copyTriples (const Point3Array& points, float* triples) noexcept;

}
