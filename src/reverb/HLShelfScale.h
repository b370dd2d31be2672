#pragma once
#include "reverb/HalcyraParameters.h"

namespace halcyra
{

/** Maps gains and frequencies to pixels on a response curve of a given size, and back: 20 to 20000 Hz from left to
    right on a logarithmic scale, 30 to -30 dB from top to bottom. */
struct HLShelfScale
{
    static constexpr const halcyra::SliderRange &frequencies = halcyra::shelfTable[4].range,
                                                &gains = halcyra::shelfTable[1].range;
    static constexpr double lowestFrequency = frequencies.lowest, highestFrequency = frequencies.highest;
    static constexpr double lowestGain = gains.lowest, highestGain = gains.highest;

    double width = 0, height = 0;

    [[nodiscard]] double x (double hz) const noexcept;
    [[nodiscard]] double y (double dB) const noexcept;
    /** Not clamped to the scale. */
    [[nodiscard]] double frequency (double x) const noexcept;
    [[nodiscard]] double gain (double y) const noexcept;
};

}
