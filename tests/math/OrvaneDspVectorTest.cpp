#include "math/OrvaneDspVector.h"
#include "CountedNew.h"
#include "support/core/Raised.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>

using qel::Vector;
using testing::ElementsAre;

TEST (Vector, GrowsByHalf)
{
    Vector<float> v (8);
    EXPECT_EQ (v.capacity(), 8u);
    v.push_back (1);
    EXPECT_EQ (v.capacity(), 12u);
    v.resize (13);
    EXPECT_EQ (v.capacity(), 18u);
    v.resize (100);
    EXPECT_EQ (v.capacity(), 100u) << "what is needed is more than half as much again";
    EXPECT_EQ (v[8], 1.0f);
    EXPECT_EQ (v[99], 0.0f);
}

TEST (Vector, IsAligned)
{
    for (std::size_t size = 1; size < 40; ++size)
        EXPECT_EQ (reinterpret_cast<std::uintptr_t> (Vector<std::int16_t> (size).data()) % 16, 0u);
}

TEST (Vector, TakesItsOwnElementsWhileItMoves)
{
    Vector<qel::String> v;
    v.push_back ("a text that is too long to be kept without storage of its own");
    for (int i = 0; i < 100; ++i)
        v.push_back (v[static_cast<std::size_t> (i)]);
    EXPECT_EQ (v.size(), 101u);
    for (const auto& text : v)
        EXPECT_EQ (text, v.front());
}

TEST (Vector, ErasesAndClears)
{
    Vector<int> v{ 1, 2, 3, 4 };
    v.erase (3);
    v.erase (0);
    EXPECT_THAT (v, ElementsAre (2, 3));
    v.clear();
    EXPECT_TRUE (v.empty());
    EXPECT_EQ (Vector<int>().data(), nullptr);
}

TEST (Vector, CopiesAndMoves)
{
    Vector<int> v{ 1, 2, 3 };
    Vector<int> copy = v;
    copy.push_back (4);
    v = copy;
    EXPECT_EQ (v, copy);
    const auto& same = v;
    v = same;
    EXPECT_THAT (v, ElementsAre (1, 2, 3, 4));
    const Vector<int> moved = std::move (v);
    EXPECT_THAT (moved, ElementsAre (1, 2, 3, 4));
    EXPECT_NE (moved, (Vector<int>{ 1, 2, 3 }));
}

TEST (Vector, HoldsWhatCanOnlyBeMoved)
{
    Vector<std::unique_ptr<int>> v;
    for (int i = 0; i < 10; ++i)
        v.push_back (std::make_unique<int> (i));
    v.erase (0);
    EXPECT_EQ (*v.front(), 1);
    EXPECT_EQ (*v.back(), 9);
}

TEST (Vector, GrowsWithoutBuildingAnyText)
{
    Vector<int> v;
    const auto before = newCalls();
    for (int i = 0; i < 10'000; ++i)
        v.push_back (i);
    v.resize (20'000);
    const Vector<int> copy = v;
    EXPECT_EQ (newCalls(), before) << "text is built on the plain heap, arrays are not";
    EXPECT_EQ (copy.size(), 20'000u);
}

TEST (Vector, DoesNothingWhenItHasTheSize)
{
    Vector<int> v (5);
    const auto* storage = v.data();
    v.resize (5);
    EXPECT_EQ (v.data(), storage);
    EXPECT_EQ (v.capacity(), 5u);
}

namespace
{

enum class Fault
{
    none,
    noMemory,
    standard,
    other
};
Fault fault = Fault::none;

/** An element whose copy may fail. */
struct Fragile
{
    Fragile() = default;
    Fragile (const Fragile& other) : value (other.value)
    {
        switch (fault) {
        case Fault::none:
            break;
        case Fault::noMemory:
            throw std::bad_alloc();
        case Fault::standard:
            throw std::runtime_error ("fell apart");
        case Fault::other:
            throw 42;
        }
    }
    Fragile& operator= (const Fragile&) = default;

    int value = 7;
};

template <typename Operation>
std::string failure (Fault kind, Operation&& operation)
{
    fault = kind;
    auto message = raised (operation);
    fault = Fault::none;
    return message;
}

}

TEST (Vector, TellsFailuresInTheLibrarysOwnWords)
{
    struct Row
    {
        Fault fault;
        const char* message;
    };
    const Row rows[] = { { Fault::noMemory, "out of memory" },
                         { Fault::standard, "exception fell apart occurred" },
                         { Fault::other, "Unknown exception" } };
    for (const auto& row : rows) {
        Vector<Fragile> v (3);
        const Fragile element;
        EXPECT_EQ (failure (row.fault, [&] { v.push_back (element); }), row.message);
        EXPECT_EQ (failure (row.fault, [&] { v.push_back (v[0]); }), row.message);
        EXPECT_EQ (failure (row.fault, [&] { v.resize (50); }), row.message);
        EXPECT_EQ (failure (row.fault, [&] { Vector<Fragile> (v).clear(); }), row.message);
        EXPECT_EQ (failure (row.fault, [&] { v = Vector<Fragile> (v); }), row.message);
        EXPECT_EQ (v.size(), 3u) << "as it was";
        EXPECT_EQ (v[2].value, 7);
    }
    Vector<float> floats{ 1 };
    EXPECT_NE (failure (Fault::none, [&] { floats.resize (SIZE_MAX); }), "nothing");
    EXPECT_EQ (floats.size(), 1u);
}
