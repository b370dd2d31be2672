#pragma once
#include "reverb/HalcyraParameters.h"

namespace halcyra
{

/** The stages' present times in ms, which limit a new one. */
struct StageTimes
{
    float earlyStart, earlyEnd, clusterStart, clusterEnd;
};

/** Limits a requested parameter value: to its range, and no stage before the one that precedes it. */
[[nodiscard]] float limited (const ParameterRow& row, float wish, const StageTimes& present) noexcept;

}
