#include "math/OrvaneDspVectorImplementation.h"

#include <algorithm>

namespace qel
{

void ippsZero_32f (float* destination, std::size_t length) noexcept { ippsSet_32f (0.0f, destination, length); }

void ippsCopy_32f (const float* source, float* destination, std::size_t length) noexcept
{
    std::copy (source, source + length, destination);
}

void ippsSet_32f (float constant, float* array, std::size_t length) noexcept
{
    std::fill (array, array + length, constant);
}

void ippsMulC_32f_I (float constant, float* array, std::size_t length) noexcept
{
    if (constant == 1.0f)
        return;
    if (constant == 0.0f) {
        ippsZero_32f (array, length);
        return;
    }
    for (std::size_t i = 0; i < length; ++i)
        array[i] *= constant;
}

void ippsSum_32f (const float* source, std::size_t length, float* sum, IppHint hint) noexcept
{
    if (hint == IppHint::accurate) {
        double total = 0;
        for (std::size_t i = 0; i < length; ++i)
            total += static_cast<double> (source[i]);
        *sum = static_cast<float> (total);
    } else {
        float total = 0;
        for (std::size_t i = 0; i < length; ++i)
            total += source[i];
        *sum = total;
    }
}

void copyFloats (float* destination, const float* source, std::size_t length) noexcept
{
    ippsCopy_32f (source, destination, length);
}

}
