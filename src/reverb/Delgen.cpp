#include "reverb/Delgen.h"
#include "math/OrvaneDspRandom.h"
#include "math/OrvaneDspVectorImplementation.h"

#include <algorithm>
#include <cmath>

namespace Ambrel
{

namespace
{

constexpr std::uint32_t tableSize = 16;
constexpr float table[tableSize] = { 2, 5, 7, 11, 18, 23, 29, 37, 46, 59, 71, 82, 97, 113, 127, 145 };
/** Up to 8 delays use the first 8 ranks, always including both ends. */
constexpr std::uint32_t ranks[tableSize] = { 1, 8, 7, 4, 6, 3, 5, 2, 9, 10, 11, 12, 13, 14, 15, 16 };
constexpr std::uint32_t endOfFirstHalf = 7;

constexpr float leastSpan = 3.2879817f; // ms: the last number of the table in samples at 44100 Hz

std::uint32_t limitedCount (std::uint32_t count) { return std::clamp (count, 1u, Delgen::maxNumDelays); }

void normalise (qel::Vector<float>& positions, float first, float last)
{
    for (float& position : positions)
        position = (position - first) / (last - first);
}

}

Delgen::Delgen (std::uint32_t numDelays, float minimum, float maximum, float) : numdelays (limitedCount (numDelays))
{
    makeTemplate();
    if (! changeMinMax ({ minimum, maximum, defaultDistr }))
        computeDelays();
}

qel::Vector<float> Delgen::setMinMax (float minimum, float maximum, float distribution)
{
    changeMinMax ({ minimum, maximum, distribution });
    return delays;
}

qel::Vector<float> Delgen::setMinSum (float minimum, float wishedSum, float distribution)
{
    changeMinSum (minimum, wishedSum, distribution);
    return delays;
}

void Delgen::setNumDelays (std::uint32_t count)
{
    numdelays = limitedCount (count);
    makeTemplate();
    setMinMax (range.min, range.max, defaultDistr);
}

void Delgen::setSum (float wishedSum) { setMinSum (range.min, wishedSum, range.distr); }

void Delgen::makeTemplate()
{
    delays.resize (numdelays);
    qel::ippsZero_32f (delays.data(), delays.size());
    mean = (numdelays > tableSize ? makeRandomTemplate() : makeTableTemplate()) / static_cast<float> (numdelays);
}

float Delgen::makeTableTemplate()
{
    positions.resize (tableSize);
    order.resize (tableSize);
    std::copy (std::begin (table), std::end (table), positions.begin());
    std::copy (std::begin (ranks), std::end (ranks), order.begin());
    normalise (positions, table[0], table[numdelays > endOfFirstHalf ? numdelays - 1 : endOfFirstHalf]);

    float total = 0;
    for (std::uint32_t i = 0; i < tableSize; ++i)
        if (order[i] <= numdelays)
            total += positions[i];
    return total;
}

float Delgen::makeRandomTemplate()
{
    positions.resize (numdelays);
    order.clear();
    qel::srand (0);
    positions[0] = 0;
    for (std::uint32_t i = 1; i < numdelays; ++i)
        positions[i] = positions[i - 1] + static_cast<float> (qel::rand()) / 32767.0f;
    normalise (positions, positions.front(), positions.back());

    float total = 0;
    qel::ippsSum_32f (positions.data(), positions.size(), &total, qel::IppHint::accurate);
    return total;
}

void Delgen::computeDelays()
{
    auto& [min, max, distr] = range;
    if (! (max - min > leastSpan))
        max = min + leastSpan;

    // A single delay has a mean of 0, so the exponent is 0 and the delay ends at the maximum.
    const float exponent = (1 / distr - 1) / (1 / mean - 1);
    const float span = max - min;
    sum = 0;
    std::size_t place = 0;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (! order.empty() && order[i] > numdelays)
            continue;
        const float delay = std::pow (positions[i], exponent) * span + min;
        delays[place++] = std::clamp (delay, min, max);
        sum += delay;
    }
}

bool Delgen::change (const Range& wanted)
{
    const auto before = range;
    range = wanted;
    computeDelays();
    const float largestSum = range.max * static_cast<float> (maxNumDelays); // for any later count
    if (std::isfinite (largestSum) && std::isfinite (sum))
        return true;
    range = before;
    computeDelays();
    return false;
}

bool Delgen::changeMinMax (const Range& wanted)
{
    if (! std::isfinite (wanted.min) || ! std::isfinite (wanted.max) || ! std::isfinite (wanted.distr))
        return false;
    const float min = std::max (wanted.min, 1.0f);
    return change ({ min, std::max (wanted.max, min), std::clamp (wanted.distr, 0.1f, 0.9f) });
}

bool Delgen::changeMinSum (float minimum, float wishedSum, float distribution)
{
    const float maximum = (wishedSum / static_cast<float> (numdelays) - minimum) / distribution + minimum;
    if (! std::isfinite (maximum) || ! std::isfinite (distribution))
        return false;
    const auto [lower, upper] = std::minmax ({ minimum, maximum });
    return change ({ std::max (lower, 1.0f), upper, distribution });
}

bool Delgen::processOscMessage (const qel::OSCMessage& message)
{
    using Numbers = qel::Vector<float>;
    struct Row
    {
        const char* letters;
        const char* address;
        bool (*apply) (Delgen&, const Numbers&);
    };
    static constexpr Row rows[] = {
        { "i", "/numdelays",
          [] (Delgen& d, const Numbers& n) {
              d.setNumDelays (static_cast<std::uint32_t> (std::clamp (n[0], 0.0f, float (maxNumDelays))));
              return true;
          } },
        { "n", "/min",
          [] (Delgen& d, const Numbers& n) {
              return d.change ({ std::min (std::max (n[0], 1.0f), d.range.max), d.range.max, d.range.distr });
          } },
        { "n", "/max",
          [] (Delgen& d, const Numbers& n) {
              return d.change ({ d.range.min, std::max ({ n[0], 1.0f, d.range.min }), d.range.distr });
          } },
        { "n", "/distr",
          [] (Delgen& d, const Numbers& n) {
              return d.change ({ d.range.min, d.range.max, std::clamp (n[0], 0.1f, 0.9f) });
          } },
        { "n", "/sum", [] (Delgen& d, const Numbers& n) { return d.changeMinSum (d.range.min, n[0], d.range.distr); } },
        { "nnn", "/minmax",
          [] (Delgen& d, const Numbers& n) {
              return d.changeMinMax ({ n[0], n[1], n[2] });
          } },
        { "nn", "/minmax",
          [] (Delgen& d, const Numbers& n) {
              return d.changeMinMax ({ n[0], n[1], defaultDistr });
          } },
        { "nnn", "/minsum", [] (Delgen& d, const Numbers& n) { return d.changeMinSum (n[0], n[1], n[2]); } },
        { "nn", "/minsum", [] (Delgen& d, const Numbers& n) { return d.changeMinSum (n[0], n[1], defaultDistr); } },
    };

    const auto numbers = message.toFloats();
    if (! std::all_of (numbers.begin(), numbers.end(), [] (float number) { return std::isfinite (number); }))
        return false;
    for (const auto& row : rows)
        if (message.has (row.letters, true) && message.matches (row.address))
            return row.apply (*this, numbers);
    return false;
}

qel::OSCBundle Delgen::getOscState()
{
    qel::OSCBundle state;
    state.add ("/numdelays", static_cast<std::int32_t> (numdelays));
    state.add ("/min", range.min);
    state.add ("/max", range.max);
    state.add ("/sum", sum);
    state.add ("/distr", range.distr);
    return state;
}

}
