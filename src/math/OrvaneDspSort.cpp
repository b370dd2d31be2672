#include "math/OrvaneDspSort.h"

#include <cmath>

namespace qel
{

namespace
{

/** Introsort falls back to insertion sort up to this size. */
constexpr std::ptrdiff_t smallRange = 16;

void insertionSort (int* first, int* last)
{
    for (int* p = first; p != last; ++p) {
        const int value = *p;
        int* hole = p;
        for (; hole != first && hole[-1] > value; --hole)
            *hole = hole[-1];
        *hole = value;
    }
}

void heapsort (int* first, int* last)
{
    std::make_heap (first, last);
    std::sort_heap (first, last);
}

/** Partitions a range of two or more about its first element. Both parts are smaller than the range, the left one is
    not empty, and nothing in it is larger than anything in the right one. */
int* partition (int* first, int* last)
{
    const int pivot = *first;
    int* left = first - 1;
    int* right = last;
    for (;;) {
        do
            ++left;
        while (*left < pivot);
        do
            --right;
        while (*right > pivot);
        if (left >= right)
            return right + 1;
        std::swap (*left, *right);
    }
}

/** Recurses into the smaller part and loops on the larger one, to keep the stack shallow. */
void quicksort (int* first, int* last)
{
    while (last - first > 1) {
        int* const middle = partition (first, last);
        if (middle - first < last - middle) {
            quicksort (first, middle);
            first = middle;
        } else {
            quicksort (middle, last);
            last = middle;
        }
    }
}

void introsort (int* first, int* last, int limit)
{
    for (; last - first > smallRange; --limit) {
        if (limit <= 0) {
            heapsort (first, last);
            return;
        }
        int* const middle = partition (first, last);
        introsort (middle, last, limit - 1);
        last = middle;
    }
    insertionSort (first, last);
}

}

void sort (int* values, std::size_t count, SortMethod method)
{
    if (count < 2)
        return;
    int* const end = values + count;
    switch (method) {
    case SortMethod::introsort:
        introsort (values, end, static_cast<int> (std::lround (std::log2 (static_cast<double> (count)))));
        break;
    case SortMethod::quicksort:
        quicksort (values, end);
        break;
    case SortMethod::heapsort:
        heapsort (values, end);
        break;
    case SortMethod::insertionSort:
        insertionSort (values, end);
        break;
    }
}

void sort (Vector<int>& values, SortMethod method) { sort (values.data(), values.size(), method); }

bool hasRepetitions (const int* values, std::size_t count, bool isSorted)
{
    if (isSorted)
        return std::adjacent_find (values, values + count) != values + count;

    Vector<int> sorted (count);
    std::copy (values, values + count, sorted.begin());
    sort (sorted);
    return hasRepetitions (sorted, true);
}

bool hasRepetitions (const Vector<int>& values, bool isSorted)
{
    return hasRepetitions (values.data(), values.size(), isSorted);
}

int maximum (const int* values, std::size_t count) noexcept
{
    return count == 0 ? 0 : *std::max_element (values, values + count);
}

int minimum (const int* values, std::size_t count) noexcept
{
    return count == 0 ? 0 : *std::min_element (values, values + count);
}

}
