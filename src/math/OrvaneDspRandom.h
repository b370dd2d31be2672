#pragma once
#include <cstdint>

namespace qel
{

/** A small generator of the numbers 0 to 32767, the same on every platform, so that what is drawn from it repeats. */
class Random
{
public:
    static constexpr int max = 32767;

    explicit Random (unsigned seed = 1) noexcept : state (seed) {}

    void srand (unsigned seed) noexcept { state = seed; }
    [[nodiscard]] int rand() noexcept;

private:
    std::uint32_t state;
};

/** The generator of the thread, in the manner of the C library: as if seeded with 1 until it is seeded. */
void srand (unsigned seed) noexcept;
[[nodiscard]] int rand() noexcept;

}
