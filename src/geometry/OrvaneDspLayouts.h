#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** Where sources and speakers stand until they are told otherwise: at distance 1, in the horizontal plane. */
namespace qel
{

/** Points at equal angles, clockwise, the first one in front. Also the default layout of sources. */
[[nodiscard]] Point3Array ringLayout (std::size_t count);
/** The usual set-up for 1 to 8 speakers, and the ring for more. */
[[nodiscard]] Point3Array defaultSpeakerLayout (std::size_t count);

/** Copies the points as triples x, y, z into room for 3 floats a point. */
void copyTriples (const Point3Array& points, float* triples) noexcept;

}
