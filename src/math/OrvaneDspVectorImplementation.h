#pragma once
#include <cstddef>

/** Plain loops over arrays of 32-bit floats. Lengths are in elements; 0 does nothing. Any thread. */
namespace qel
{

enum class IppHint
{
    none = 0,
    fast = 1,
    accurate = 2
};

void ippsZero_32f (float* destination, std::size_t length) noexcept;
/** The arrays must not overlap. */
void ippsCopy_32f (const float* source, float* destination, std::size_t length) noexcept;
void ippsSet_32f (float constant, float* array, std::size_t length) noexcept;
/** In place. A constant of 1 leaves the array unchanged; 0 clears it, whatever it holds. */
void ippsMulC_32f_I (float constant, float* array, std::size_t length) noexcept;
/** IppHint::accurate rounds to single precision once, at the end; otherwise every step rounds. */
void ippsSum_32f (const float* source, std::size_t length, float* sum, IppHint hint) noexcept;

/** ippsCopy_32f with the destination first. */
void copyFloats (float* destination, const float* source, std::size_t length) noexcept;

}
