#pragma once
#include <cstdint>

namespace qel
{

/** A linear congruential generator of 48 bits. */
class Random48
{
public:
    explicit Random48 (std::uint64_t seed) noexcept;

    /** The next number, of the whole range of 32 bits. */
    [[nodiscard]] std::uint32_t next() noexcept;

    /** One for the process, seeded from the clocks. It has no lock. */
    [[nodiscard]] static Random48& shared();

private:
    std::uint64_t state;
};

}
