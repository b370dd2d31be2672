#include "math/OrvaneDspRandom.h"

namespace qel
{

namespace
{

Random& ofThread() noexcept
{
    thread_local Random generator;
    return generator;
}

}

int Random::rand() noexcept
{
    state = state * 1103515245u + 12345u;
    return static_cast<int> (state >> 16 & static_cast<std::uint32_t> (max)); // the low bits have short periods
}

void srand (unsigned seed) noexcept { ofThread().srand (seed); }

int rand() noexcept { return ofThread().rand(); }

}
