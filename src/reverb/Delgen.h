#pragma once
#include "osc/OrvaneDspOscInterface.h"

#include <cstdint>

namespace Ambrel
{

/** Generates delay times in ms from a count, a range and a distribution: mutually incommensurate for up to 16 delays,
    randomised above, identical on each run. The distribution shifts delays towards the minimum (small) or the maximum
    (large). Changes with a non-finite result are rejected and leave everything unchanged. Single precision throughout.
    Message thread. */
class Delgen : public qel::OscInterface
{
public:
    static constexpr std::uint32_t maxNumDelays = 64;
    static constexpr float defaultDistr = 0.5f;

    /** The distribution is ignored and starts at its default. */
    Delgen (std::uint32_t numDelays, float minimum, float maximum, float distribution);

    /** In ms, ascending. */
    [[nodiscard]] const qel::Vector<float>& getDelays() const noexcept { return delays; }

    /** Clamps the minimum to at least 1, the maximum to at least the minimum, the distribution to 0.1 to 0.9. */
    qel::Vector<float> setMinMax (float minimum, float maximum, float distribution);
    /** Finds the maximum for a given sum of the delays. The distribution is not clamped. */
    qel::Vector<float> setMinSum (float minimum, float wishedSum, float distribution);
    /** 1 to 64; resets the distribution to its default. */
    void setNumDelays (std::uint32_t count);
    /** Keeps the minimum and the distribution. */
    void setSum (float wishedSum);

    /** /numdelays i, /min n, /max n, /distr n, /sum n, /minmax nn[n], /minsum nn[n]. */
    bool processOscMessage (const qel::OSCMessage& message) override;
    /** /numdelays, /min, /max, /sum, /distr. */
    qel::OSCBundle getOscState() override;

private:
    struct Range
    {
        float min, max; ///< ms
        float distr;
    };

    void makeTemplate();
    float makeTableTemplate();
    float makeRandomTemplate();
    void computeDelays();
    /** Returns false and changes nothing if the result is not finite. */
    bool change (const Range& wanted);
    bool changeMinMax (const Range& wanted);
    bool changeMinSum (float minimum, float wishedSum, float distribution);

    std::uint32_t numdelays;
    float sum = 0; ///< ms, of the delays before clamping
    Range range{ 1, 1, defaultDistr };
    qel::Vector<float> delays;        ///< ms
    qel::Vector<float> positions;     ///< the template, 0 to 1; ranks past numdelays may exceed 1
    qel::Vector<std::uint32_t> order; ///< the rank of each position; empty if all are used
    float mean = 0;                   ///< of the positions used
};

}
