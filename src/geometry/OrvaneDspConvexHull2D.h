#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <cstddef>
#include <utility>

namespace qel
{

/** The convex hull of points in the plane; z is ignored. */
class ConvexHull2D
{
public:
    ConvexHull2D() = default;
    explicit ConvexHull2D (const Point3Array& points);

    /** The corners, counterclockwise, starting at the lowest point (the leftmost of equals); no three are collinear.
        Empty for fewer than two points, the two ends for collinear points, one point if all coincide.
        Non-finite points are ignored. */
    [[nodiscard]] const Point3Array& hull() const& noexcept { return output; }
    [[nodiscard]] Point3Array hull() && noexcept { return std::move (output); }

private:
    struct Point2D
    {
        float x, y;
        std::size_t index; ///< into the input, from 1
        bool deleted;
    };

    static int turn (const Point2D& a, const Point2D& b, const Point2D& c) noexcept;
    void collect();
    void sortAroundPivot();
    void scan();

    Point3Array input;
    Point3Array output;
    Vector<Point2D> points;
};

}
