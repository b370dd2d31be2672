#include "geometry/OrvaneDspConvexHull2D.h"
#include "geometry/OrvaneDspPlanarPredicates.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

namespace qel
{

ConvexHull2D::ConvexHull2D (const Point3Array& given) : input (given)
{
    collect();
    if (points.size() < 2)
        return;
    sortAroundPivot();
    scan();
}

void ConvexHull2D::collect()
{
    for (std::size_t i = 0; i < input.size(); ++i)
        if (std::isfinite (input[i].x) && std::isfinite (input[i].y))
            points.push_back ({ input[i].x, input[i].y, i + 1, false });
}

int ConvexHull2D::turn (const Point2D& a, const Point2D& b, const Point2D& c) noexcept
{
    return orientation ({ a.x, a.y, 0 }, { b.x, b.y, 0 }, { c.x, c.y, 0 });
}

/** Puts the pivot first, then sorts by angle around it, then by distance. Keeps only the farthest of equal angles, and
    drops points that coincide with the pivot. */
void ConvexHull2D::sortAroundPivot()
{
    const auto lower = [] (const Point2D& a, const Point2D& b) { return std::tie (a.y, a.x) < std::tie (b.y, b.x); };
    std::iter_swap (points.begin(), std::min_element (points.begin(), points.end(), lower));

    const auto pivot = points[0];
    const auto coincides = [&] (const Point2D& p) { return p.x == pivot.x && p.y == pivot.y; };
    const auto others = std::partition (points.begin() + 1, points.end(), coincides);
    std::for_each (points.begin() + 1, others, [] (Point2D& p) { p.deleted = true; });

    // On one ray from the lowest, leftmost point the farther point is the higher one, or the one further right.
    std::sort (others, points.end(), [&] (const Point2D& a, const Point2D& b) {
        const int side = turn (pivot, a, b);
        return side != 0 ? side > 0 : lower (a, b);
    });
    for (auto p = others; p != points.end() && p + 1 != points.end(); ++p)
        p->deleted = turn (pivot, *p, *(p + 1)) == 0;
}

void ConvexHull2D::scan()
{
    std::vector<const Point2D*> kept;
    for (const auto& point : points) {
        if (point.deleted)
            continue;
        while (kept.size() > 1 && turn (*kept[kept.size() - 2], *kept.back(), point) <= 0)
            kept.pop_back();
        kept.push_back (&point);
    }
    for (const auto* const point : kept)
        output.push_back (input[point->index - 1]);
}

}
