#pragma once
#include <cstddef>

/** Calls of operator new in this program so far. */
std::size_t newCalls() noexcept;
