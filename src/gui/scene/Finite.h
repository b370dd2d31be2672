#pragma once
#include <cmath>

namespace lumo::Plane
{

/** NaN and infinity must never reach an object: they would propagate through every later sum. */
template <typename... Numbers>
[[nodiscard]] bool AreFinite (Numbers... numbers) noexcept
{
    return (std::isfinite (numbers) && ...);
}

}
