#include "reverb/EarlyGains.h"

#include "math/OrvaneDspRandom.h"

#include <algorithm>
#include <cmath>

namespace halcyra
{

namespace
{

constexpr char signs[] = "-++---++--+++--+---+++-----++++++++-----++--+----++-++-+---+++++";
constexpr std::size_t numSigns = sizeof (signs) - 1;
static_assert (numSigns == 64);

/** The exponent of the ramp, and whether it rises. */
struct Ramp
{
    bool rising;
    float exponent;

    explicit Ramp (float shape) noexcept
    {
        const float s = std::clamp (shape, 0.0f, 1.0f);
        rising = s > 0.5f;
        if (s <= 0.25f)
            exponent = 1.0f / std::clamp (4 * s, 0.000001f, 1.0f);
        else if (s <= 0.5f)
            exponent = 1.0f - 4 * (s - 0.25f);
        else if (s <= 0.75f)
            exponent = 4 * (s - 0.5f);
        else
            exponent = 1.0f / (1.0f - std::min (4 * (s - 0.75f), 0.9999989867210388f));
    }
};

/** Uniform over 0.95 to 1.05. */
float randomFactor() noexcept
{
    const auto draw = static_cast<float> (qel::rand());
    return 0.09999996423721313f * draw * 3.0517578125e-05f + 0.949999988079071f;
}

float innerGain (float spread) noexcept
{
    if (spread < 20)
        return 0.1f;
    return std::min ((std::clamp (spread, 20.0f, 60.0f) - 20) / 40 * 0.9f + 0.1f, 1.0f);
}

void varyLargeCount (qel::Vector<float>& out, float spread, bool normalize)
{
    const auto n = static_cast<float> (out.size());
    const float a = innerGain (spread);
    const auto period = static_cast<std::size_t> (2 * n * 0.125f);
    float sum = 0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const bool inner = i % period != 0 && i % period != period - 1;
        out[i] *= randomFactor() * (inner ? a : 1.0f);
        sum += inner ? a : 1.0f;
    }
    if (normalize)
        for (auto& gain : out)
            gain *= std::sqrt (n) / std::sqrt (sum);
}

}

void earlyGains (qel::Vector<float>& out, float shape, float spread, bool normalize)
{
    const Ramp ramp (shape);
    const auto count = out.size();
    const auto n = static_cast<float> (count);
    float sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const auto place = static_cast<float> (ramp.rising ? i + 1 : count - i);
        out[i] = std::pow (place / n, ramp.exponent);
        sum += out[i];
    }
    for (std::size_t i = 0; i < count; ++i)
        out[i] *= (signs[i % numSigns] == '+' ? n : -n) / sum;
    if (count > 8)
        varyLargeCount (out, spread, normalize);
}

}
