#pragma once
#include <cstdint>

namespace qel
{

/** A 48-bit linear congruential generator. */
class Random48
{
public:
    explicit Random48 (std::uint64_t seed) noexcept;

    /** The next number, over the full 32-bit range. */
    [[nodiscard]] std::uint32_t next() noexcept;

    /** The process's generator, seeded from the clocks. Not thread-safe. */
    [[nodiscard]] static Random48& shared();

private:
    std::uint64_t state;
};

}
