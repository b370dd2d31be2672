#include "geometry/OrvaneDspTriangulation.h"
#include "geometry/OrvaneDspPlanarPredicates.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <tuple>
#include <vector>

namespace qel
{

namespace
{

using Indices = std::vector<std::size_t>;

constexpr std::size_t none = SIZE_MAX;

/** Delaunay triangulation by a sweep over points sorted by x, then y. Each new point lies outside the present hull and
    is joined to the hull edges visible from it; then edges are swapped until no circle contains a point.

    A triangle is three consecutive half-edges, counterclockwise; each stores its first point and its twin in the
    neighbouring triangle. The hull is a ring of points, counterclockwise. */
class DelaunaySweep
{
public:
    explicit DelaunaySweep (Point3Array risingPoints)
        : points (std::move (risingPoints)),
          hullNext (points.size(), none),
          hullPrevious (points.size(), none),
          hullEdge (points.size(), none)
    {}

    /** False if all points are collinear. */
    bool run()
    {
        std::size_t first = 2;
        while (first < points.size() && orientation (points[0], points[1], points[first]) == 0)
            ++first;
        if (first >= points.size())
            return false;
        startFan (first);
        for (std::size_t point = first + 1; point < points.size(); ++point)
            insert (point);
        return true;
    }

    /** Three in a row per triangle. */
    [[nodiscard]] const Indices& corners() const noexcept { return origin; }

private:
    struct VisibleEdge
    {
        std::size_t from, to;
        std::size_t inner; ///< its half-edge
    };

    static std::size_t next (std::size_t edge) noexcept { return edge % 3 == 2 ? edge - 2 : edge + 1; }
    static std::size_t previous (std::size_t edge) noexcept { return edge % 3 == 0 ? edge + 2 : edge - 1; }

    /** Builds triangles between the apex and the points before it, which are collinear. */
    void startFan (std::size_t apex)
    {
        const bool above = orientation (points[0], points[1], points[apex]) > 0;
        for (std::size_t i = 0; i + 1 < apex; ++i) {
            const auto low = above ? apex - 1 - i : i, high = above ? low - 1 : low + 1;
            visible.push_back ({ low, high, none });
        }
        attach (apex);
        for (const auto& edge : visible)
            joinHull (edge.to, edge.from);
    }

    void insert (std::size_t point)
    {
        auto from = point - 1; // the rightmost point so far: at least one of its two edges is visible
        while (sees (point, hullPrevious[from], from))
            from = hullPrevious[from];
        visible.clear();
        for (; sees (point, from, hullNext[from]); from = hullNext[from])
            visible.push_back ({ from, hullNext[from], hullEdge[from] });
        attach (point);
    }

    [[nodiscard]] bool sees (std::size_t point, std::size_t from, std::size_t to) const noexcept
    {
        return orientation (points[from], points[to], points[point]) < 0;
    }

    /** Adds a triangle on each visible edge with the new point as its apex, then restores the Delaunay property. */
    void attach (std::size_t point)
    {
        auto neighbour = none;
        for (const auto& edge : visible) {
            const auto triangle = origin.size();
            origin.insert (origin.end(), { edge.to, edge.from, point });
            twin.resize (origin.size(), none);
            link (triangle, edge.inner);
            link (triangle + 1, neighbour);
            neighbour = triangle + 2;
            pending.push_back (triangle);
        }
        link (neighbour, none);
        joinHull (visible.front().from, point);
        joinHull (point, visible.back().to);
        swapEdges();
    }

    void link (std::size_t edge, std::size_t other)
    {
        twin[edge] = other;
        if (other == none)
            hullEdge[origin[edge]] = edge;
        else
            twin[other] = edge;
    }

    void joinHull (std::size_t from, std::size_t to)
    {
        hullNext[from] = to;
        hullPrevious[to] = from;
    }

    /** A pending edge is opposite the newest point in its triangle. */
    void swapEdges()
    {
        while (! pending.empty()) {
            const auto edge = pending.back(), other = twin[edge];
            pending.pop_back();
            if (other == none)
                continue;
            const auto opposite = origin[previous (other)];
            if (inCircle (points[origin[edge]], points[origin[next (edge)]], points[origin[previous (edge)]],
                          points[opposite]) > 0)
                swap (edge, other, opposite);
        }
    }

    /** Swaps the diagonal of the quadrilateral around an edge. The two new triangles share the apex of the first. */
    void swap (std::size_t edge, std::size_t other, std::size_t opposite)
    {
        const auto back = previous (edge), otherBack = previous (other);
        const auto outside = twin[back], otherOutside = twin[otherBack];
        origin[other] = origin[back];
        origin[edge] = opposite;
        link (edge, otherOutside);
        link (other, outside);
        link (back, otherBack);
        pending.push_back (edge);
        pending.push_back (next (other));
    }

    const Point3Array points;
    Indices origin, twin;                     ///< per half-edge; an edge of the hull has no twin
    Indices hullNext, hullPrevious, hullEdge; ///< per point; stale for inner points
    std::vector<VisibleEdge> visible;         ///< from the point being added, in hull order
    Indices pending;                          ///< half-edges to test
};

Indices risingOrder (const Point3Array& points)
{
    Indices order (points.size());
    std::iota (order.begin(), order.end(), std::size_t (0));
    std::sort (order.begin(), order.end(), [&] (std::size_t a, std::size_t b) {
        return std::tie (points[a].x, points[a].y) < std::tie (points[b].x, points[b].y);
    });
    return order;
}

bool isSame (double a, double b) noexcept
{
    return std::abs (a - b) <= (std::max (std::abs (a), std::abs (b)) + 1) * 2.220446049250313e-14;
}

bool coincide (const Point3& a, const Point3& b) noexcept { return isSame (a.x, b.x) && isSame (a.y, b.y); }

}

bool Triangulation::compute (const Point3Array& points)
{
    list.clear();
    const auto isFlat = [] (const Point3& p) { return std::isfinite (p.x) && std::isfinite (p.y); };
    if (points.size() < 3 || ! std::all_of (points.begin(), points.end(), isFlat))
        return false;

    const auto order = risingOrder (points);
    Point3Array rising;
    for (const auto index : order)
        rising.push_back (points[index]);
    if (std::adjacent_find (rising.begin(), rising.end(), coincide) != rising.end())
        return false;

    DelaunaySweep sweep (std::move (rising));
    if (! sweep.run())
        return false;
    const auto& corners = sweep.corners();
    for (std::size_t i = 0; i < corners.size(); i += 3)
        list.push_back ({ order[corners[i]], order[corners[i + 1]], order[corners[i + 2]] });
    return true;
}

Vector<TriangleXY> Triangulation::triangles (const Point3Array& points) const
{
    Vector<TriangleXY> result;
    for (const auto& [a, b, c] : list)
        result.push_back ({ points[a], points[b], points[c] });
    return result;
}

}
