#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <array>

namespace qel
{

/** A rotation about the origin: roll about x, then pitch about y, then yaw about z. Angles in radians. */
class Rotation
{
public:
    /** Note the order of the angles. */
    Rotation (float roll, float pitch, float yaw) noexcept;

    [[nodiscard]] Point3 operator() (const Point3& p) const noexcept;

private:
    std::array<Point3, 3> rows;
};

}
