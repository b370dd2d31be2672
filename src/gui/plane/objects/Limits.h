#pragma once
#include <algorithm>

namespace lumo::Plane
{

/** A size as a proportion of the component's width. */
[[nodiscard]] inline float ClampProportion (float value) noexcept { return std::clamp (value, 0.001f, 1.0f); }

inline constexpr float leastLevel = -60.0f, greatestLevel = 6.0f; // dB

[[nodiscard]] inline float ClampLevel (float decibels) noexcept
{
    return std::clamp (decibels, leastLevel, greatestLevel);
}

}
