#include "reverb/HalcyraLimits.h"

#include <algorithm>

namespace halcyra
{

float limited (const ParameterRow& row, float wish, const StageTimes& present) noexcept
{
    const auto lowest = static_cast<float> (row.range.lowest), highest = static_cast<float> (row.range.highest);
    switch (row.number) { // where limits cross, the last clamp of each rule wins
    case parameter::earlyStart:
        return std::min (std::max (wish, lowest), present.earlyEnd);
    case parameter::earlyEnd:
        return std::min (std::min (std::max (wish, present.earlyStart), highest), present.clusterEnd);
    case parameter::clusterStart:
        return std::min (std::max (wish, present.earlyStart), present.clusterEnd);
    case parameter::clusterEnd:
        return std::max (std::min (std::max (wish, present.earlyEnd), highest), present.clusterStart);
    case parameter::reverbStart:
        return std::min (std::max (wish, present.clusterStart), highest);
    default:
        return std::clamp (wish, lowest, highest);
    }
}

}
