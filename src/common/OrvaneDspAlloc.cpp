#include "common/OrvaneDspAlloc.h"
#include "common/OrvaneDspException.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace qel
{

// The C library already aligns its storage to 16 bytes on every platform we build for.
static_assert (alignof (std::max_align_t) >= arrayAlignment);

namespace
{

struct BadAllocation : std::bad_alloc
{
    [[nodiscard]] const char* what() const noexcept override { return "bad allocation"; }
};

void* tested (void* p)
{
    if (p == nullptr)
        throw BadAllocation();
    return p;
}

}

void* allocate (std::size_t bytes) { return tested (std::malloc (std::max<std::size_t> (bytes, 1))); }

void* reallocate (void* p, std::size_t bytes) { return tested (std::realloc (p, std::max<std::size_t> (bytes, 1))); }

void free (void* p) noexcept { std::free (p); }

std::size_t byteCount (std::size_t count, std::size_t size)
{
    if (size != 0 && count > SIZE_MAX / size)
        throw Exception ("allocation overflow.", QEL_HERE);
    return count * size;
}

}
