#pragma once
#include "reverb/HalcyraParameters.h"

namespace halcyra
{

/** Where the stages stand at present, in ms: what a stage's new time is held against. */
struct StageTimes
{
    float earlyStart, earlyEnd, clusterStart, clusterEnd;
};

/** The value that a wish for a parameter comes to: within its range, and no stage before the one that precedes it. */
[[nodiscard]] float limited (const ParameterRow& row, float wish, const StageTimes& present) noexcept;

}
