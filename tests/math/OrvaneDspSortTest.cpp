#include "math/OrvaneDspSort.h"
#include "math/OrvaneDspRandom.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

using qel::SortMethod;
using qel::Vector;

namespace
{

constexpr SortMethod methods[] = { SortMethod::introsort, SortMethod::quicksort, SortMethod::heapsort,
                                   SortMethod::insertionSort };

/** Worst-case orders for common quicksorts. */
std::vector<Vector<int>> awkwardArrays (std::size_t size)
{
    qel::Random random (static_cast<unsigned> (size));
    Vector<int> rising (size);
    std::iota (rising.begin(), rising.end(), -static_cast<int> (size / 2));
    Vector<int> falling = rising, equal (size), few = rising, mixed = rising;
    std::reverse (falling.begin(), falling.end());
    for (auto& value : few)
        value = random.rand() % 4;
    for (auto& value : mixed)
        value = random.rand() - 16384;
    if (size > 1) {
        mixed.front() = std::numeric_limits<int>::max();
        mixed.back() = std::numeric_limits<int>::min();
    }
    return { rising, falling, equal, few, mixed };
}

}

TEST (Sort, OrdersEveryArrayByEveryMethod)
{
    for (const std::size_t size : { 0u, 1u, 2u, 3u, 15u, 16u, 17u, 18u, 100u, 1000u })
        for (const auto& array : awkwardArrays (size))
            for (const auto method : methods) {
                Vector<int> sorted = array, expected = array;
                qel::sort (sorted, method);
                std::sort (expected.begin(), expected.end());
                EXPECT_EQ (sorted, expected) << size << " by method " << static_cast<int> (method);
            }
}

TEST (Sort, IsShallowAndFastOnWhatQuicksortHates)
{
    for (auto array : awkwardArrays (200'000)) {
        qel::sort (array);
        EXPECT_TRUE (std::is_sorted (array.begin(), array.end()));
    }
    Vector<int> rising (20'000);
    std::iota (rising.begin(), rising.end(), 0);
    qel::sort (rising, SortMethod::quicksort); // 20,000 levels deep if it recursed into the larger part
    EXPECT_TRUE (std::is_sorted (rising.begin(), rising.end()));
}

TEST (Repetitions, AreFoundInSortedAndUnsortedArrays)
{
    EXPECT_FALSE (qel::hasRepetitions (Vector<int>{}, false));
    EXPECT_FALSE (qel::hasRepetitions (Vector<int>{ 3, 1, 2 }, false));
    EXPECT_TRUE (qel::hasRepetitions (Vector<int>{ 3, 1, 3 }, false));
    EXPECT_TRUE (qel::hasRepetitions (Vector<int>{ 1, 1, 2 }, true));
    EXPECT_FALSE (qel::hasRepetitions (Vector<int>{ 3, 1, 3 }, true)) << "only neighbours are compared";
}

TEST (Extremes, ArePlainAndGuarded)
{
    const int values[] = { 4, -7, 9, 9, 0 };
    EXPECT_EQ (qel::maximum (values, 5), 9);
    EXPECT_EQ (qel::minimum (values, 5), -7);
    EXPECT_EQ (qel::maximum (values, 1), 4);
    EXPECT_EQ (qel::minimum (nullptr, 0), 0);
    EXPECT_EQ (qel::maximum (nullptr, 0), 0);
}
