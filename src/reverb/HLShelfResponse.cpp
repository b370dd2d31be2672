#include "reverb/HLShelfResponse.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace
{

constexpr float pi = 3.1415927f;

float linear (float dB) noexcept { return std::pow (10.0f, dB / 20.0f); }

/** One shelf in the bilinear plane: its gain ratio and turnover frequency. */
struct Shelf
{
    float ratio; // linear gain below the turnover over the gain above it
    float turn;  // prewarped turnover frequency

    Shelf (float below, float above, float frequency)
        : ratio (linear (below - above)), turn (std::tan (frequency * pi) / std::sqrt (ratio))
    {}
    [[nodiscard]] float pole() const noexcept { return (turn - 1) / (turn + 1); }
    [[nodiscard]] float zero() const noexcept { return (turn * ratio - 1) / (turn * ratio + 1); }
    [[nodiscard]] float gain() const noexcept { return (turn * ratio + 1) / (turn + 1); }
};

/** Single precision throughout, widened at the end. */
HLShelfResponse::Section designed (const HLShelfParameters& filter) noexcept
{
    const float g = linear (filter.G0);
    if (filter.Gl == 0 && filter.Gm == 0 && filter.Gh == 0)
        return { g, 0, 0, 1, 0, 0 };

    constexpr float rate = static_cast<float> (HLShelfResponse::sampleRate);
    float low = filter.fl / rate, high = filter.fh / rate;
    if (low > high)
        std::swap (low, high); // the order of the crossovers does not matter

    const Shelf first (filter.Gl, filter.Gm, std::max (0.0f, low));
    const Shelf second (filter.Gm, filter.Gh, std::min (0.5f, high));
    const float p1 = first.pole(), z1 = first.zero(), p2 = second.pole(), z2 = second.zero();
    const float k = linear (filter.Gh) * second.gain() * first.gain();
    return { g * k, (z2 + z1) * k * g, z2 * z1 * k * g, 1, p2 + p1, p2 * p1 };
}

}

HLShelfResponse::Magnitude HLShelfResponse::Magnitude::of (double c0, double c1, double c2) noexcept
{
    const double sum = c0 + c1 + c2;
    return { c0 * c2, (c0 + c2) * c1 + 4 * c0 * c2, sum * sum };
}

double HLShelfResponse::Magnitude::at (double q) const noexcept
{
    return std::max ((q * square - linear) * q + constant, std::numeric_limits<double>::epsilon());
}

void HLShelfResponse::design (const HLShelfParameters& wish) noexcept
{
    used = halcyra::clipped (wish);
    coefficients = designed (used);
    numerator = Magnitude::of (coefficients.b0, coefficients.b1, coefficients.b2);
    denominator = Magnitude::of (coefficients.a0, coefficients.a1, coefficients.a2);
}

double HLShelfResponse::decibelsAt (double hz) const noexcept
{
    constexpr double step = 3.14159265358979323846 / sampleRate;
    const double sine = std::sin (hz * step);
    const double q = 4 * sine * sine;
    return 10 * std::log10 (numerator.at (q)) - 10 * std::log10 (denominator.at (q));
}
