#include "geometry/OrvaneDspRotation.h"
#include "PointMatchers.h"
#include "geometry/OrvaneDspSpherical.h"

using namespace qel;

TEST (Rotation, TurnsAboutEachAxis)
{
    const Point3 x{ 1, 0, 0 }, y{ 0, 1, 0 }, z{ 0, 0, 1 };
    const Rotation roll (halfPi, 0, 0), pitch (0, halfPi, 0), yaw (0, 0, halfPi);

    EXPECT_THAT (roll (x), isAbout (x));
    EXPECT_THAT (roll (y), isAbout (z));
    EXPECT_THAT (pitch (y), isAbout (y));
    EXPECT_THAT (pitch (z), isAbout (x));
    EXPECT_THAT (yaw (z), isAbout (z));
    EXPECT_THAT (yaw (x), isAbout (y));
}

TEST (Rotation, RollsThenPitchesThenYaws)
{
    const Point3 p{ 1, -2, 3 };
    const float roll = 0.3f, pitch = -0.7f, yaw = 2.1f;
    const Point3 inSteps = Rotation (0, 0, yaw) (Rotation (0, pitch, 0) (Rotation (roll, 0, 0) (p)));
    EXPECT_THAT (Rotation (roll, pitch, yaw) (p), isAbout (inSteps));
    EXPECT_EQ (Rotation (0, 0, 0) (p), p);
    EXPECT_NEAR (distance (inSteps), distance (p), 1e-5f);
}
