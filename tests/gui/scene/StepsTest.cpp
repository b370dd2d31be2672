#include "gui/scene/Steps.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace lumo::Plane;
using qel::Point3;

namespace
{

constexpr float quarter = 1.5707964f;

void ExpectAt (const Point3& point, const Point3& wanted)
{
    const auto off = point - wanted;
    EXPECT_NEAR (std::hypot (off.x, off.y, off.z), 0, 1e-6) << point.x << ' ' << point.y << ' ' << point.z;
}

}

TEST (Steps, KeepTheAxisThatTheViewHides)
{
    ExpectAt (StepInView ({ 1, 2, 3 }, { 5, 4, 9 }, true), { 4, 2, 0 });
    ExpectAt (StepInView ({ 1, 2, 3 }, { 5, 4, 9 }, false), { 4, 0, 6 });
}

TEST (Steps, TurnAgainstTheClockInBothViews)
{
    ExpectAt (Turned ({ 2, 0, 5 }, quarter, true), { 0, 2, 5 });
    ExpectAt (Turned ({ 2, 5, 0 }, quarter, false), { 0, 5, 2 });
    EXPECT_FLOAT_EQ (TurnInView ({ 1, 0, 7 }, { 0, 3, -7 }, true), quarter);
    EXPECT_FLOAT_EQ (TurnInView ({ 1, 7, 0 }, { 0, -7, 3 }, false), quarter);
    const Point3 exact{ 0.1f, 0.7f, 1e30f };
    EXPECT_EQ (Turned (exact, 0, true), exact) << "no angle changes no digit";
}
