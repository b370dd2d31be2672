#include "common/OrvaneDspAlloc.h"
#include "math/OrvaneDspVector.h"
#include "memory/OrvaneDspHeapBlock.h"
#include "support/core/Raised.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool hasSanitizer = true;
#else
constexpr bool hasSanitizer = false;
#endif

TEST (Alloc, GivesAlignedStorageForEverySize)
{
    for (std::size_t bytes = 0; bytes < 300; bytes += 7) {
        void* const p = qel::allocate (bytes);
        EXPECT_EQ (reinterpret_cast<std::uintptr_t> (p) % qel::arrayAlignment, 0u) << bytes;
        qel::free (p);
    }
}

TEST (Alloc, MovesWhatTheStorageHolds)
{
    void* p = qel::reallocate (nullptr, 5);
    std::memcpy (p, "halc", 5);
    p = qel::reallocate (p, 100'000);
    EXPECT_STREQ (static_cast<const char*> (p), "halc");
    EXPECT_EQ (reinterpret_cast<std::uintptr_t> (p) % qel::arrayAlignment, 0u);
    qel::free (p);
    qel::free (nullptr);
}

TEST (Alloc, CountsBytesUpToTheLargestNumber)
{
    EXPECT_EQ (qel::byteCount (SIZE_MAX / 8, 8), SIZE_MAX / 8 * 8);
    EXPECT_EQ (qel::byteCount (0, 8), 0u);
    EXPECT_EQ (raised ([] { (void)qel::byteCount (SIZE_MAX / 8 + 1, 8); }), "allocation overflow.");
}

TEST (Alloc, TellsWhenThereIsNoMemory)
{
    if (hasSanitizer)
        GTEST_SKIP() << "the sanitizer ends the process instead";
    volatile std::size_t tooMuch = SIZE_MAX / 4;
    const auto failure = [] (auto&& operation) -> std::string {
        try {
            operation();
        } catch (const std::bad_alloc& e) {
            return e.what();
        }
        return "nothing";
    };
    EXPECT_EQ (failure ([&] { qel::free (qel::allocate (tooMuch)); }), "bad allocation");

    void* const p = qel::allocate (8);
    EXPECT_EQ (failure ([&] { qel::free (qel::reallocate (p, tooMuch)); }), "bad allocation");
    qel::free (p);

    // Growth is guarded.
    EXPECT_EQ (raised ([&] { qel::Vector<char>().resize (tooMuch); }), "out of memory");
    EXPECT_EQ (raised ([&] { qel::HeapBlock().resize (tooMuch); }), "out of memory");
}
