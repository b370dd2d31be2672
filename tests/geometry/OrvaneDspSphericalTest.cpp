#include "geometry/OrvaneDspSpherical.h"
#include "PointMatchers.h"

#include <limits>
#include <random>

using namespace qel;

namespace
{

constexpr float largest = std::numeric_limits<float>::max();

Point3 anyPoint (std::mt19937& random)
{
    std::uniform_real_distribution<float> coordinate (-10, 10);
    return { coordinate (random), coordinate (random), coordinate (random) };
}

}

TEST (Wrapping, StaysInItsRangeForNumbersOfAnySize)
{
    EXPECT_EQ (wrapDegrees (360), 0);
    EXPECT_EQ (wrapDegrees (-90), 270);
    EXPECT_EQ (wrapDegrees (1270), 190);
    EXPECT_EQ (wrapDegrees (-1e-7f), 0) << "a turn more is a whole turn";
    for (int exponent = -20; exponent < 127; ++exponent)
        for (const float number : { std::ldexp (1.3f, exponent), std::ldexp (-1.3f, exponent), largest, -largest }) {
            EXPECT_GE (wrapDegrees (number), 0) << number;
            EXPECT_LT (wrapDegrees (number), 360) << number;
            EXPECT_GE (wrapRadians (number), -pi) << number;
            EXPECT_LT (wrapRadians (number), pi) << number;
        }
}

TEST (Azimuth, RunsClockwiseFromTheFront)
{
    struct Row
    {
        float azimuth;
        Point3 point;
    };
    const Row rows[] = { { 0, { 0, 1, 0 } },
                         { 90, { 1, 0, 0 } },
                         { -90, { -1, 0, 0 } },
                         { -180, { 0, -1, 0 } },
                         { 45, { 0.70710677f, 0.70710677f, 0 } } };
    for (const auto& row : rows) {
        EXPECT_THAT (fromUserSpherical (row.azimuth, 0, 1), isAbout (row.point)) << row.azimuth;
        EXPECT_NEAR (azimuth (row.point), row.azimuth, 2e-5f);
    }
    EXPECT_THAT (fromUserSpherical (450, 0, 1), isAbout ({ 1, 0, 0 }));
    EXPECT_EQ (azimuth ({}), 90) << "that of atan2 (0, 0)";
}

TEST (Azimuth, IsTheInverseOfTheInternalAngle)
{
    for (int step = -485; step <= 485; ++step) {
        const float degrees = static_cast<float> (step) * 0.37f;
        EXPECT_NEAR (userAzimuth (internalAngle (degrees)), degrees, 1e-4f);
    }
}

TEST (Elevation, IsPlusStraightUpAndZeroAtTheOrigin)
{
    EXPECT_NEAR (elevation ({ 0, 0, 2 }), 90, 1e-5f);
    EXPECT_NEAR (elevation ({ 0, 0, -2 }), -90, 1e-5f);
    EXPECT_NEAR (elevation ({ 0, 1, 1 }), 45, 1e-5f);
    EXPECT_EQ (elevation ({ 3, -4, 0 }), 0);
    EXPECT_EQ (elevation ({}), 0);
}

TEST (Distance, IsRightForNearAndFarPoints)
{
    EXPECT_EQ (distance ({ 2, 3, 6 }), 7);
    EXPECT_EQ (distance ({}), 0);
    EXPECT_NEAR (distance ({ 3e30f, 4e30f, 0 }) / 5e30f, 1, 1e-6f);
    EXPECT_NEAR (distance ({ 3e-30f, 4e-30f, 0 }) / 5e-30f, 1, 1e-6f);
    EXPECT_NEAR (elevation ({ 0, 0, 1e-30f }), 90, 1e-4f);
}

TEST (Spherical, NormalisesWhatIsBeyondItsRanges)
{
    struct Row
    {
        float azimuth, elevation, distance;
        Point3 same;
    };
    const Row rows[] = {
        { 0, 100, 1, fromUserSpherical (180, 80, 1) },
        { 0, -100, 1, fromUserSpherical (180, -80, 1) },
        { 0, 0, -2, { 0, -2, 0 } },
        { 30, 20, -2, fromUserSpherical (-150, -20, 2) },
        { 30, 380, 2, fromUserSpherical (30, 20, 2) },
        { 750, 20, 2, fromUserSpherical (30, 20, 2) },
        { 30, 100, -2, fromUserSpherical (30, -80, 2) },
    };
    for (const auto& row : rows)
        EXPECT_THAT (fromUserSpherical (row.azimuth, row.elevation, row.distance), isAbout (row.same))
            << row.azimuth << " " << row.elevation << " " << row.distance;
}

TEST (Spherical, ComesBackFromEveryPoint)
{
    std::mt19937 random (1);
    for (int i = 0; i < 10'000; ++i) {
        const Point3 p = anyPoint (random);
        EXPECT_THAT (fromUserSpherical (azimuth (p), elevation (p), distance (p)), IsNear (p, 3e-5f));
    }
}

TEST (Spherical, SetsOneComponentAndKeepsTheOthers)
{
    std::mt19937 random (2);
    for (int i = 0; i < 2'000; ++i) {
        const Point3 p = anyPoint (random);
        if (std::abs (elevation (p)) > 80)
            continue; // so close to the pole the azimuth is inaccurate

        const Point3 turned = withAzimuth (p, 33);
        EXPECT_NEAR (azimuth (turned), 33, 1e-3f);
        EXPECT_NEAR (elevation (turned), elevation (p), 1e-3f);
        EXPECT_NEAR (distance (turned), distance (p), 1e-5f * distance (p));

        const Point3 raised = withElevation (p, -21);
        EXPECT_NEAR (azimuth (raised), azimuth (p), 1e-3f);
        EXPECT_NEAR (elevation (raised), -21, 1e-3f);

        const Point3 moved = withDistance (p, 3);
        EXPECT_NEAR (azimuth (moved), azimuth (p), 1e-3f);
        EXPECT_NEAR (elevation (moved), elevation (p), 1e-3f);
        EXPECT_NEAR (distance (moved), 3, 1e-5f);
    }
}

TEST (Spherical, RaisesOverThePole)
{
    for (const auto& [set, read] :
         { std::pair (100.0f, 80.0f), std::pair (-100.0f, -80.0f), std::pair (260.0f, -80.0f) }) {
        const Point3 p = withElevation ({ 0, 2, 0 }, set);
        EXPECT_NEAR (elevation (p), read, 1e-4f) << set;
        EXPECT_NEAR (std::abs (azimuth (p)), 180, 1e-4f) << set;
        EXPECT_NEAR (distance (p), 2, 1e-6f) << set;
    }
    EXPECT_NEAR (azimuth (withElevation ({ 0, 2, 0 }, 340)), 0, 1e-4f) << "-20 in another guise";
}
