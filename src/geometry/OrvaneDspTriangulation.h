#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <array>
#include <cstddef>

namespace qel
{

/** The corners of a triangle; only x and y count. */
struct TriangleXY
{
    Point3 a, b, c;
};

/** The Delaunay triangulation of points in the plane: no point lies inside the circle through a triangle's corners. */
class Triangulation
{
public:
    /** Three indices into the points, counterclockwise. */
    using Triple = std::array<std::size_t, 3>;

    /** False, with no triangles, for fewer than three points, points that all lie in a line, two points that coincide
        within (max (|a|, |b|) + 1) * 2.220446049250313e-14 on each axis, or a point that is not finite. */
    bool compute (const Point3Array& points);

    [[nodiscard]] const Vector<Triple>& triples() const noexcept { return list; }
    /** The triangles' corners among the points that were given to compute. */
    [[nodiscard]] Vector<TriangleXY> triangles (const Point3Array& points) const;

private:
    Vector<Triple> list;
};

}
