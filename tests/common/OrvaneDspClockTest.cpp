#include "common/OrvaneDspClock.h"
#include "common/OrvaneDspTime.h"

#include <gtest/gtest.h>

#include <chrono>

TEST (SteadyCounter, TakesASmallStepBackForNoise)
{
    qel::SteadyCounter counter;
    EXPECT_EQ (counter.accept (5000), 5000u);
    EXPECT_EQ (counter.accept (4999), 5000u);
    EXPECT_EQ (counter.accept (4000), 5000u);
    EXPECT_EQ (counter.accept (3999), 3999u) << "more than a second back is a new time";
    EXPECT_EQ (counter.accept (4001), 4001u);
    EXPECT_EQ (counter.accept (0xffffffff), 0xffffffffu);
    EXPECT_EQ (counter.accept (3), 3u) << "the counter has wrapped";
}

namespace
{

std::int64_t wallTime = 0;
int wallReads = 0;

std::int64_t fakeWall() noexcept
{
    ++wallReads;
    return wallTime;
}

}

TEST (FollowedClock, AsksTheWallClockOnceAndAfterAWrap)
{
    wallReads = 0;
    wallTime = 1'000'000;
    qel::FollowedClock clock (fakeWall);
    EXPECT_EQ (clock.at (500), 1'000'000);
    wallTime = 7;
    EXPECT_EQ (clock.at (750), 1'000'250) << "the wall clock was set, and is not looked at";
    EXPECT_EQ (clock.at (745), 1'000'245);
    EXPECT_EQ (wallReads, 1);

    wallTime = 2'000'000;
    EXPECT_EQ (clock.at (734), 2'000'000);
    EXPECT_EQ (clock.at (735), 2'000'001);
    EXPECT_EQ (wallReads, 2);
}

TEST (Clock, AgreesWithTheSystem)
{
    using namespace std::chrono;
    const auto now = duration_cast<milliseconds> (system_clock::now().time_since_epoch()).count();
    EXPECT_NEAR (static_cast<double> (qel::Time::now().milliseconds()), static_cast<double> (now), 2000);
}

TEST (Clock, WaitsAtLeastAsLongAsAsked)
{
    for (const int wait : { -5, 0, 1, 9, 10, 25 }) {
        const auto start = std::chrono::steady_clock::now();
        qel::sleepMilliseconds (wait);
        EXPECT_GE (std::chrono::steady_clock::now() - start, std::chrono::milliseconds (wait)) << wait;
    }
}
