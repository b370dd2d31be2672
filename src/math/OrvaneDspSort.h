#pragma once
#include "math/OrvaneDspVector.h"

namespace qel
{

enum class SortMethod
{
    introsort = 0,
    quicksort = 1,
    heapsort = 2,
    insertionSort = 3
};

/** Sorts in place, ascending. Introsort and heapsort are O(n log n) in the worst case. */
void sort (int* values, std::size_t count, SortMethod method = SortMethod::introsort);
void sort (Vector<int>& values, SortMethod method = SortMethod::introsort);

/** Whether any value occurs more than once. Unsorted arrays are checked in a sorted copy. */
[[nodiscard]] bool hasRepetitions (const int* values, std::size_t count, bool isSorted);
[[nodiscard]] bool hasRepetitions (const Vector<int>& values, bool isSorted);

/** 0 for an empty array. */
[[nodiscard]] int maximum (const int* values, std::size_t count) noexcept;
[[nodiscard]] int minimum (const int* values, std::size_t count) noexcept;

}
