#include "reverb/EarlyGains.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace
{

qel::Vector<float> gains (std::size_t count, float shape, float spread = 100, bool normalize = false)
{
    qel::Vector<float> out (count);
    halcyra::earlyGains (out, shape, spread, normalize);
    return out;
}

TEST (EarlyGains, OneTapHasTheMagnitudeOne)
{
    for (const float shape : { 0.0f, 0.5f, 1.0f })
        EXPECT_EQ (gains (1, shape)[0], -1) << shape;
}

TEST (EarlyGains, TheMeanMagnitudeIsOneForEveryShapeAndItsOppositeIsTheMirrorImage)
{
    for (float shape = 0; shape <= 1; shape += 0.05f) {
        const auto g = gains (8, shape);
        const float sum =
            std::accumulate (g.begin(), g.end(), 0.0f, [] (float s, float v) { return s + std::abs (v); });
        EXPECT_NEAR (sum, 8, 1e-4f) << shape;
        const auto mirrored = gains (8, 1 - shape);
        for (std::size_t i = 0; i < g.size(); ++i)
            EXPECT_NEAR (std::abs (g[i]), std::abs (mirrored[g.size() - 1 - i]), 1e-3f) << shape;
    }
}

TEST (EarlyGains, AHalfMakesAllEqualAndTheSignsAlternateAsInTheirTable)
{
    EXPECT_EQ (gains (8, 0.5f), (qel::Vector<float>{ -1, 1, 1, -1, -1, -1, 1, 1 }));
}

struct Slope
{
    float shape;
    int direction; // of the magnitudes
};

TEST (EarlyGains, TheShapeTiltsTheTaps)
{
    for (const auto& row :
         { Slope{ 0.05f, -1 }, { 0.25f, -1 }, { 0.4f, -1 }, { 0.6f, 1 }, { 0.75f, 1 }, { 0.95f, 1 } }) {
        const auto g = gains (8, row.shape);
        for (std::size_t i = 1; i < g.size(); ++i)
            EXPECT_GE ((std::abs (g[i]) - std::abs (g[i - 1])) * static_cast<float> (row.direction), 0)
                << "shape " << row.shape << ", tap " << i;
    }
}

TEST (EarlyGains, TheEndsOfTheShapeLeaveOneTap)
{
    EXPECT_NEAR (gains (8, 0)[0], -8, 1e-3f);
    EXPECT_NEAR (gains (8, 1)[7], 8, 1e-3f);
    EXPECT_NEAR (gains (8, -3)[0], -8, 1e-3f);
    EXPECT_NEAR (gains (8, 9)[7], 8, 1e-3f);
}

TEST (EarlyGains, AQuarterIsALinearRamp)
{
    const auto g = gains (4, 0.25f);
    EXPECT_FLOAT_EQ (g[0] / g[3], 4) << "signs of the first and the fourth are equal";
    EXPECT_FLOAT_EQ (g[1] / g[2], 1.5f);
}

TEST (EarlyGains, ManyTapsVaryByFivePercentAndFadeInsideANarrowSpread)
{
    for (const auto& [spread, inner] :
         { std::pair{ 5.0f, 0.1f }, { 25.0f, 0.2125f }, { 40.0f, 0.55f }, { 60.0f, 1.0f }, { 500.0f, 1.0f } }) {
        const auto g = gains (16, 0.5f, spread); // a period of 4: the second and third of each fade
        for (std::size_t i = 0; i < g.size(); ++i) {
            const float expected = i % 4 == 1 || i % 4 == 2 ? inner : 1.0f;
            EXPECT_GE (std::abs (g[i]), 0.9499f * expected) << "spread " << spread << ", tap " << i;
            EXPECT_LE (std::abs (g[i]), 1.0501f * expected) << "spread " << spread << ", tap " << i;
        }
    }
}

TEST (EarlyGains, NormalizingScalesByTheEnergyOfTheWindow)
{
    const auto g = gains (16, 0.5f, 5, true); // eight at 1 and eight at 0.1: sqrt (16 / 8.8)
    EXPECT_NEAR (std::abs (g[0]), 1.3484f, 0.0675f);
}

}
