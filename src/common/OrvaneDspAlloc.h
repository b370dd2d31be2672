#pragma once
#include <cstddef>

/** 16-byte aligned storage for all arrays of the library, so that vector kernels may work on them. Any thread. */
namespace qel
{

inline constexpr std::size_t arrayAlignment = 16;

/** Aligned bytes, not cleared; at least one byte is always had. Raises a std::bad_alloc,
    "bad allocation", which a guard turns into "out of memory". */
[[nodiscard]] void* allocate (std::size_t bytes);

/** Moves the storage to a new size and keeps what fits; a null p allocates. Raises the same, then p stands. */
[[nodiscard]] void* reallocate (void* p, std::size_t bytes);

/** Gives storage back; null is ignored. */
void free (void* p) noexcept;

/** count * size; raises "allocation overflow." before anything is tried. */
[[nodiscard]] std::size_t byteCount (std::size_t count, std::size_t size);

}
