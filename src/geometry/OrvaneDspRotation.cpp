#include "geometry/OrvaneDspRotation.h"

#include <cmath>

namespace qel
{

Rotation::Rotation (float roll, float pitch, float yaw) noexcept
{
    const float cr = std::cos (roll), sr = std::sin (roll);
    const float cp = std::cos (pitch), sp = std::sin (pitch);
    const float cy = std::cos (yaw), sy = std::sin (yaw);
    rows = { { { cy * cp, cy * sr * sp - sy * cr, cy * cr * sp + sy * sr },
               { sy * cp, sp * sr * sy + cy * cr, sp * cr * sy - cy * sr },
               { -sp, cp * sr, cp * cr } } };
}

Point3 Rotation::operator() (const Point3& p) const noexcept
{
    return { dot (rows[0], p), dot (rows[1], p), dot (rows[2], p) };
}

}
