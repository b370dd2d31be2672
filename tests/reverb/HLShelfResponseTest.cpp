#include "reverb/HLShelfResponse.h"
#include "reverb/HLShelfScale.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

HLShelfResponse designed (const HLShelfParameters& wish)
{
    HLShelfResponse response;
    response.design (wish);
    return response;
}

TEST (HLShelfResponse, AFreshOneIsFlatAtZero)
{
    const HLShelfResponse response;
    for (const double hz : { 20.0, 1000.0, 20000.0 })
        EXPECT_NEAR (response.decibelsAt (hz), 0, 1e-9);
}

TEST (HLShelfResponse, EqualBandsAreFlatAtTheirSumWithTheGlobalGain)
{
    for (const double hz : { 20.0, 250.0, 1000.0, 4000.0, 20000.0 }) {
        EXPECT_NEAR (designed ({ -6, 0, 0, 0, 250, 4000 }).decibelsAt (hz), -6, 1e-5) << hz;
        EXPECT_NEAR (designed ({ -6, 9, 9, 9, 250, 4000 }).decibelsAt (hz), 3, 1e-4) << hz;
    }
}

TEST (HLShelfResponse, EachBandReachesItsGain)
{
    const auto response = designed ({ 2, 6, -4, 10, 50, 15000 });
    EXPECT_NEAR (response.decibelsAt (1), 8, 0.05);
    EXPECT_NEAR (response.decibelsAt (1000), -2, 0.8);
    EXPECT_NEAR (response.decibelsAt (22050), 12, 0.05);
}

TEST (HLShelfResponse, ACrossoverLiesHalfWayBetweenItsBands)
{
    for (const float hz : { 50.0f, 250.0f, 4000.0f, 15000.0f }) {
        EXPECT_NEAR (designed ({ 0, 12, 0, 0, hz, 20000 }).decibelsAt (hz), 6, 0.01) << hz;
        EXPECT_NEAR (designed ({ 0, 0, 0, -9, 20, hz }).decibelsAt (hz), -4.5, 0.01) << hz;
    }
}

TEST (HLShelfResponse, TheOrderOfTheCrossoversDoesNotMatter)
{
    const auto there = designed ({ 0, 12, -12, 6, 300, 3000 }), back = designed ({ 0, 12, -12, 6, 3000, 300 });
    for (double hz = 20; hz < 20000; hz *= 1.5)
        EXPECT_EQ (there.decibelsAt (hz), back.decibelsAt (hz)) << hz;
}

TEST (HLShelfResponse, DesignsWithinTheLimits)
{
    const auto used = designed ({ -500, -99, 99, 31, 1, 1e6f }).parameters();
    EXPECT_EQ (used, (HLShelfParameters{ -200, -30, 30, 30, 20, 20000 }));
}

TEST (HLShelfResponse, StaysFiniteAtTheEdges)
{
    for (const HLShelfParameters& p : { HLShelfParameters{ -200, 0, 0, 0, 20, 20 },
                                        { 30, 30, -30, 30, 20, 20000 },
                                        { -200, -30, 30, -30, 20000, 20000 },
                                        { 0, 30, -30, 30, 20, 20 } })
        for (const double hz : { 0.0, 20.0, 20000.0, 22050.0 })
            EXPECT_TRUE (std::isfinite (designed (p).decibelsAt (hz))) << hz;
}

TEST (HLShelfScale, PutsTheEndsAtTheEdges)
{
    const halcyra::HLShelfScale scale{ 192, 150 };
    EXPECT_NEAR (scale.x (20), 0, 1e-9);
    EXPECT_NEAR (scale.x (std::sqrt (20.0 * 20000.0)), 96, 1e-9);
    EXPECT_NEAR (scale.x (20000), 192, 1e-9);
    EXPECT_EQ (scale.y (30), 0);
    EXPECT_EQ (scale.y (0), 75);
    EXPECT_EQ (scale.y (-30), 150);
}

TEST (HLShelfScale, LeadsBackFromPixels)
{
    const halcyra::HLShelfScale scale{ 192, 150 };
    for (double x = -10; x <= 200; x += 7)
        EXPECT_NEAR (scale.x (scale.frequency (x)), x, 1e-9);
    for (double y = -10; y <= 160; y += 7)
        EXPECT_NEAR (scale.y (scale.gain (y)), y, 1e-9);
}

}
