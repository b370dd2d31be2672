#pragma once
#include <cstddef>

/** 16-byte aligned allocation for all arrays of the library, so that vector kernels may use them. Any thread. */
namespace qel
{

inline constexpr std::size_t arrayAlignment = 16;

/** Allocates uninitialised aligned storage; always allocates at least one byte. Throws std::bad_alloc
    ("bad allocation"), which a guard turns into "out of memory". */
[[nodiscard]] void* allocate (std::size_t bytes);

/** Resizes and keeps what fits; a null p allocates. Throws as allocate does, and p then stays valid. */
[[nodiscard]] void* reallocate (void* p, std::size_t bytes);

/** Frees storage; null is ignored. */
void free (void* p) noexcept;

/** count * size; throws "allocation overflow." on overflow, before anything is allocated. */
[[nodiscard]] std::size_t byteCount (std::size_t count, std::size_t size);

}
