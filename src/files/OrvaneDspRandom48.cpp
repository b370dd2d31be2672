#include "files/OrvaneDspRandom48.h"
#include "common/OrvaneDspClock.h"

#include <chrono>

namespace qel
{

namespace
{

constexpr std::uint64_t multiplier = 25214903917, increment = 11, mask = 0xffffffffffff;

std::uint64_t seedFromClocks()
{
    const auto fine = static_cast<std::uint64_t> (std::chrono::steady_clock::now().time_since_epoch().count());
    return (static_cast<std::uint64_t> (millisecondCounter()) << 16) ^ fine;
}

}

Random48::Random48 (std::uint64_t seed) noexcept : state (seed & mask) {}

std::uint32_t Random48::next() noexcept
{
    state = (state * multiplier + increment) & mask;
    return static_cast<std::uint32_t> (state >> 16);
}

Random48& Random48::shared()
{
    static Random48 generator (seedFromClocks());
    return generator;
}

}
