#include "PointSets.h"
#include "geometry/OrvaneDspConvexHull2D.h"
#include "geometry/OrvaneDspPlanarPredicates.h"
#include "geometry/OrvaneDspTriangulation.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <set>

using namespace pointsets;
using qel::Point3Array;
using qel::Triangulation;

namespace
{

bool areInALine (const GridPoints& points)
{
    return points.size() < 3 || std::all_of (points.begin() + 2, points.end(),
                                             [&] (GridPoint p) { return turn (points[0], points[1], p) == 0; });
}

/** Twice the area of the hull. */
Wide hullArea (const GridPoints& points)
{
    const auto hull = qel::ConvexHull2D (scaled (points, 0)).hull();
    const auto corner = [&] (std::size_t i) { return GridPoint{ std::int64_t (hull[i].x), std::int64_t (hull[i].y) }; };
    Wide area = 0;
    for (std::size_t i = 2; i < hull.size(); ++i)
        area += turn (corner (0), corner (i - 1), corner (i));
    return area;
}

void expectDelaunay (const GridPoints& points, const Triangulation& triangulation)
{
    Wide area = 0;
    std::set<std::pair<std::size_t, std::size_t>> edges;
    std::set<std::size_t> used;
    for (const auto& t : triangulation.triples()) {
        const auto a = points[t[0]], b = points[t[1]], c = points[t[2]];
        ASSERT_GT (turn (a, b, c), 0);
        area += turn (a, b, c);
        for (std::size_t i = 0; i < 3; ++i) {
            used.insert (t[i]);
            EXPECT_TRUE (edges.emplace (t[i], t[(i + 1) % 3]).second) << "two triangles on one side of an edge";
        }
        for (const auto& p : points)
            EXPECT_LE (inside (a, b, c, p), 0) << "a point in a circle";
    }
    EXPECT_TRUE (area == hullArea (points));
    EXPECT_EQ (used.size(), points.size());
}

}

TEST (Triangulation, FillsTheHullWithTrianglesWhoseCirclesAreEmpty)
{
    std::mt19937 random (21);
    int triangulated = 0;
    for (const auto& kind : kinds)
        for (int i = 0; i < 700; ++i) {
            const auto points = distinct (draw (kind, random, 40));
            Triangulation triangulation;
            const bool done = triangulation.compute (scaled (points, 0));
            triangulated += done;
            EXPECT_EQ (done, ! areInALine (points));
            if (done)
                expectDelaunay (points, triangulation);
            else
                EXPECT_TRUE (triangulation.triples().empty());
            ASSERT_FALSE (testing::Test::HasFailure()) << kind.name << ", set " << i;
        }
    EXPECT_GT (triangulated, 4'000);
}

TEST (Triangulation, IsTheSameForHugeAndSmallCoordinates)
{
    std::mt19937 random (22);
    for (const auto& kind : kinds)
        for (int i = 0; i < 100; ++i) {
            const auto points = distinct (draw (kind, random, 60));
            Triangulation plain, other;
            const bool done = plain.compute (scaled (points, 0));
            for (const int exponent : { 107, 40, -10, -30 }) {
                ASSERT_EQ (other.compute (scaled (points, exponent)), done) << kind.name << ", 2 to the " << exponent;
                ASSERT_EQ (other.triples(), plain.triples()) << kind.name << " times 2 to the " << exponent;
            }
        }
}

TEST (Triangulation, FailsWithNoTrianglesWherePointsCoincideOrLieInALine)
{
    constexpr float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const Point3Array rows[] = {
        {},
        { { 0, 0, 0 }, { 1, 0, 0 } },
        { { 0, 0, 0 }, { 1, 1, 5 }, { 2, 2, 0 } },
        { { 0, 3, 0 }, { 0, 1, 0 }, { 0, 2, 0 }, { 0, 7, 0 } },
        { { 0, 0, 0 }, { 1, 0, 0 }, { 0, 1, 0 }, { 1, 0, 9 } },
        { { 0, 0, 0 }, { 1, 0, 0 }, { 0, 1, 0 }, { 1, 1e-14f, 0 } }, // closer than the tolerance
        { { 0, 0, 0 }, { 1e-20f, 0, 0 }, { 0, 1e-20f, 0 } },
        { { 0, 0, 0 }, { 1, 0, 0 }, { 0, nan, 0 } },
        { { 0, 0, 0 }, { 1, 0, 0 }, { inf, 1, 0 } },
    };
    Triangulation triangulation;
    for (const auto& points : rows) {
        ASSERT_TRUE (triangulation.compute ({ { 0, 0, 0 }, { 1, 0, 0 }, { 0, 1, 0 } }));
        EXPECT_FALSE (triangulation.compute (points)) << "row " << &points - rows;
        EXPECT_TRUE (triangulation.triples().empty());
    }
    EXPECT_TRUE (triangulation.compute ({ { 0, 0, 0 }, { 1, 0, 0 }, { 0, 1, 0 }, { 1, 1e-13f, 0 } }));
}

TEST (Triangulation, CutsASquareInTwoAndGivesTheCornersThemselves)
{
    const Point3Array square{ { 0, 0, 1 }, { 1, 0, 2 }, { 1, 1, 3 }, { 0, 1, 4 } };
    Triangulation triangulation;
    ASSERT_TRUE (triangulation.compute (square));
    ASSERT_EQ (triangulation.triples().size(), 2u);
    const auto triangles = triangulation.triangles (square);
    ASSERT_EQ (triangles.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ (triangles[i].a, square[triangulation.triples()[i][0]]);
        EXPECT_EQ (triangles[i].c, square[triangulation.triples()[i][2]]);
    }
}

TEST (PlanarPredicates, AreFreeOfRounding)
{
    const auto sign = [] (Wide value) { return value > 0 ? 1 : value < 0 ? -1 : 0; };
    const auto flat = [] (GridPoint p) { return qel::Point3{ float (p.x), float (p.y), 0 }; };
    std::mt19937 random (23);
    int zeros = 0;
    for (int i = 0; i < 100'000; ++i) {
        // Four points near a line, or near a circle through two mirrored pairs, of very different sizes.
        const auto big = [&] { return within (random, 1 << 9) * (1 << random() % 18); };
        const GridPoint a{ big(), big() }, step{ within (random, 1 << 9), within (random, 1 << 9) };
        const GridPoint b{ a.x + step.x * 3, a.y + step.y * 3 },
            c{ a.x - step.x * 5 + within (random, 1), a.y - step.y * 5 };
        if (std::abs (b.x) >= 1 << 24 || std::abs (b.y) >= 1 << 24 || std::abs (c.x) >= 1 << 24 ||
            std::abs (c.y) >= 1 << 24)
            continue;
        zeros += turn (a, b, c) == 0;
        ASSERT_EQ (qel::orientation (flat (a), flat (b), flat (c)), sign (turn (a, b, c)));

        const GridPoint p{ -a.x, a.y }, q{ -c.x, c.y + within (random, 1) };
        auto first = a, third = c;
        if (turn (first, p, third) < 0)
            std::swap (first, third);
        zeros += inside (first, p, third, q) == 0;
        ASSERT_EQ (qel::inCircle (flat (first), flat (p), flat (third), flat (q)), sign (inside (first, p, third, q)));
    }
    EXPECT_GT (zeros, 10'000);
}

TEST (PlanarPredicates, TellASingleUnitBesideALineOfAstronomicalLength)
{
    std::mt19937 random (24);
    for (int i = 0; i < 10'000; ++i) {
        const auto huge = [&] { return within (random, 1 << 20) * (std::int64_t (1) << random() % 33); };
        const auto first = huge(), second = huge(), third = within (random, 1 << 20);
        const GridPoint a{ first, first }, b{ second, second }, c{ third, third + within (random, 1) };
        const auto flat = [] (GridPoint p) { return qel::Point3{ float (p.x), float (p.y), 0 }; };
        const auto area = turn (a, b, c);
        ASSERT_EQ (qel::orientation (flat (a), flat (b), flat (c)), area > 0 ? 1 : area < 0 ? -1 : 0);
    }
}
