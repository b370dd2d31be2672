#include "PointSets.h"
#include "geometry/OrvaneDspConvexHull2D.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

using namespace pointsets;
using qel::ConvexHull2D;
using qel::Point3Array;

namespace
{

/** The hull's corners, converted back to grid points. */
GridPoints hullOf (const GridPoints& points, int exponent)
{
    GridPoints corners;
    for (const auto& p : ConvexHull2D (scaled (points, exponent)).hull())
        corners.push_back ({ std::int64_t (std::ldexp (p.x, -exponent)), std::int64_t (std::ldexp (p.y, -exponent)) });
    return corners;
}

void expectHull (const GridPoints& points, const GridPoints& hull)
{
    const auto lowest = *std::min_element (points.begin(), points.end(), [] (GridPoint a, GridPoint b) {
        return std::tie (a.y, a.x) < std::tie (b.y, b.x);
    });
    ASSERT_FALSE (hull.empty());
    EXPECT_EQ (hull[0], lowest);
    EXPECT_EQ (hull.size(), distinct (hull).size());
    for (std::size_t i = 0; i < hull.size(); ++i) {
        const auto a = hull[i], b = hull[(i + 1) % hull.size()], c = hull[(i + 2) % hull.size()];
        EXPECT_NE (std::find (points.begin(), points.end(), a), points.end());
        if (hull.size() > 2) {
            EXPECT_GT (turn (a, b, c), 0);
        }
        for (const auto& p : points) {
            EXPECT_GE (turn (a, b, p), 0);
            if (hull.size() <= 2) { // collinear: between the two ends
                EXPECT_LE (Wide (a.x - p.x) * (b.x - p.x) + Wide (a.y - p.y) * (b.y - p.y), 0);
            }
        }
    }
}

}

TEST (ConvexHull2D, TurnsLeftAtEachCornerAndHoldsEveryPoint)
{
    std::mt19937 random (11);
    for (const auto& kind : kinds)
        for (int i = 0; i < 1'500; ++i) {
            const auto points = draw (kind, random, 30);
            const auto hull = hullOf (points, 0);
            if (points.size() < 2)
                EXPECT_TRUE (hull.empty());
            else
                expectHull (points, hull);
            ASSERT_FALSE (testing::Test::HasFailure()) << kind.name << ", set " << i;
        }
}

TEST (ConvexHull2D, IsTheSameForHugeAndTinyCoordinates)
{
    std::mt19937 random (12);
    for (const auto& kind : kinds)
        for (int i = 0; i < 300; ++i) {
            const auto points = draw (kind, random, 30);
            const auto hull = hullOf (points, 0);
            for (const int exponent : { 107, 50, -20, -80, -149 })
                ASSERT_EQ (hullOf (points, exponent), hull) << kind.name << " times 2 to the " << exponent;
        }
}

TEST (ConvexHull2D, OfFewOrDegeneratePointsIsWhatIsLeftOfIt)
{
    struct Row
    {
        GridPoints points, hull;
    };
    const Row rows[] = {
        { {}, {} },
        { { { 1, 2 } }, {} },
        { { { 1, 2 }, { 0, 2 } }, { { 0, 2 }, { 1, 2 } } },
        { { { 1, 2 }, { 1, 2 }, { 1, 2 } }, { { 1, 2 } } },
        { { { 1, 1 }, { 2, 2 }, { 0, 0 } }, { { 0, 0 }, { 2, 2 } } },
        { { { 3, 0 }, { 1, 0 }, { 2, 0 }, { 0, 0 } }, { { 0, 0 }, { 3, 0 } } },
        { { { 0, 0 }, { 2, 0 }, { 2, 2 }, { 0, 2 }, { 1, 1 }, { 1, 0 }, { 0, 1 } },
          { { 0, 0 }, { 2, 0 }, { 2, 2 }, { 0, 2 } } },
    };
    for (const auto& row : rows)
        EXPECT_EQ (hullOf (row.points, 0), row.hull);
}

TEST (ConvexHull2D, LeavesOutWhatIsNotFiniteAndKeepsTheHeightOfTheOthers)
{
    constexpr float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const ConvexHull2D hull (
        Point3Array{ { nan, 0, 0 }, { 0, 0, 5 }, { 1, -inf, 0 }, { 1, 0, 6 }, { 0, 1, 7 }, { inf, nan, 0 } });
    EXPECT_EQ (hull.hull(), (Point3Array{ { 0, 0, 5 }, { 1, 0, 6 }, { 0, 1, 7 } }));
}
