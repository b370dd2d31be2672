#include "CountedNew.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<std::size_t> calls{ 0 };

}

std::size_t newCalls() noexcept { return calls; }

void* operator new (std::size_t bytes)
{
    ++calls;
    if (void* const p = std::malloc (bytes))
        return p;
    throw std::bad_alloc();
}
void operator delete (void* p) noexcept { std::free (p); }
void operator delete (void* p, std::size_t) noexcept { std::free (p); }
