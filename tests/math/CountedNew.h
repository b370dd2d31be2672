#pragma once
#include <cstddef>

/** How often operator new was called in this program. */
std::size_t newCalls() noexcept;
