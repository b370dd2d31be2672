#include "common/OrvaneDspAlloc.h"
#include "common/OrvaneDspException.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace qel
{

void* allocate (std::size_t bytes)
{
    const auto wanted = std::max<std::size_t> (bytes, 1);
    if (wanted > SIZE_MAX - alignment)
        throw Exception ("allocation overflow.", QEL_HERE);
    void* const p = std::malloc (wanted);
    if (p == nullptr)
        throw Exception ("bad allocation", QEL_HERE);
    return p;
}

void* reallocate (void* p, std::size_t bytes)
{
    void* const moved = std::realloc (p, std::max<std::size_t> (bytes, 1));
    if (moved == nullptr)
        throw Exception ("bad allocation", QEL_HERE);
    return moved;
}

void free (void* p) noexcept { std::free (p); }

std::size_t byteCount (std::size_t count, std::size_t size)
{
    if (count > SIZE_MAX / size)
        throw Exception ("allocation overflow.", QEL_HERE);
    return count * size;
}

}
