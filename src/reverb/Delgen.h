#pragma once
#include "osc/OrvaneDspOscInterface.h"

#include <cstdint>

namespace Ambrel
{

/** Turns a count, a range in ms and a distribution into delay times: mutually incommensurate for up to 16 delays,
    randomised above, the same at each run. The distribution bends the delays towards the minimum (small) or the
    maximum (large). What would leave a number that is not finite is refused, and all stays as it was.
    Single precision throughout. Message thread. */
class Delgen : public qel::OscInterface
{
public:
    static constexpr std::uint32_t maxNumDelays = 64;
    static constexpr float defaultDistr = 0.5f;

    /** The distribution is ignored: it starts at its default. */
    Delgen (std::uint32_t numDelays, float minimum, float maximum, float distribution);

    /** In ms, ascending. */
    [[nodiscard]] const qel::Vector<float>& getDelays() const noexcept { return delays; }

    /** The minimum is at least 1, the maximum at least the minimum, the distribution within 0.1 to 0.9. */
    qel::Vector<float> setMinMax (float minimum, float maximum, float distribution);
    /** Finds the maximum for a wished sum of the delays. The distribution is taken as it stands. */
    qel::Vector<float> setMinSum (float minimum, float wishedSum, float distribution);
    /** 1 to 64; the distribution goes back to its default. */
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
    /** False, and all as it was, if the result is not finite. */
    bool change (const Range& wanted);
    bool changeMinMax (const Range& wanted);
    bool changeMinSum (float minimum, float wishedSum, float distribution);

    std::uint32_t numdelays;
    float sum = 0; ///< ms, of the delays before they are limited
    Range range{ 1, 1, defaultDistr };
    qel::Vector<float> delays;        ///< ms
    qel::Vector<float> positions;     ///< the template, 0 to 1; those of ranks past numdelays may exceed 1
    qel::Vector<std::uint32_t> order; ///< the rank of each position; empty when all are in use
    float mean = 0;                   ///< of the positions in use
};

}
