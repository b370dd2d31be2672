#pragma once
#include <cmath>

namespace lumo::Plane
{

/** What is not a number, or infinite, must never reach an object: it would come back out of every sum. */
template <typename... Numbers>
[[nodiscard]] bool AreFinite (Numbers... numbers) noexcept
{
    return (std::isfinite (numbers) && ...);
}

}
