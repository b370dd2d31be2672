#pragma once
#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

/** Clamps a size given as a proportion of the component's width. */
[[nodiscard]] inline float ClampProportion (float value) noexcept { return std::clamp (value, 0.001f, 1.0f); }

inline constexpr float leastLevel = -60.0f, greatestLevel = 6.0f; // dB

/** Clamps and stores; false if nothing changes or the level is NaN. */
[[nodiscard]] inline bool StoreLevel (float& stored, float decibels) noexcept
{
    const float wanted = std::clamp (decibels, leastLevel, greatestLevel);
    if (std::isnan (decibels) || wanted == stored)
        return false;
    stored = wanted;
    return true;
}

}
