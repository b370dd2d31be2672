#pragma once
#include <cstdint>

namespace qel
{

/** A small generator of numbers from 0 to 32767; the same on every platform, so that results are reproducible. */
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

/** Seeds the thread's generator, as in the C library: 1 until seeded. */
void srand (unsigned seed) noexcept;
[[nodiscard]] int rand() noexcept;

}
