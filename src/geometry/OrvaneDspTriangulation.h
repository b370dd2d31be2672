#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <array>
#include <cstddef>

namespace qel
{

/** The corners of a triangle; z is ignored. */
struct TriangleXY
{
    Point3 a, b, c;
};

/** The Delaunay triangulation of points in the plane: no triangle's circumcircle contains a point. */
class Triangulation
{
public:
    /** Three indices into the points, counterclockwise. */
    using Triple = std::array<std::size_t, 3>;

    /** Returns false, with no triangles, for fewer than three points, collinear points, two points that coincide within
        (max (|a|, |b|) + 1) * 2.220446049250313e-14 on each axis, or a non-finite point. */
    bool compute (const Point3Array& points);

    [[nodiscard]] const Vector<Triple>& triples() const noexcept { return list; }
    /** The triangles' corners; pass the points given to compute. */
    [[nodiscard]] Vector<TriangleXY> triangles (const Point3Array& points) const;

private:
    Vector<Triple> list;
};

}
