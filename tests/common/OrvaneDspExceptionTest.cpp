#include "common/OrvaneDspException.h"
#include "common/OrvaneDspGuard.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

using qel::Exception;
using qel::SourceLocation;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

namespace
{

struct ReportRow
{
    SourceLocation where;
    const char* report;
};

}

TEST (Exception, ReportsItselfWhenItIsConstructed)
{
    const ReportRow rows[] = {
        { {}, "Exception occurred: it broke\n\n\n" },
        { { "", 7 }, "Exception occurred: it broke\n\n\n" },
        { { "room.cpp", 0 }, "Exception occurred in \"room.cpp\": \nit broke\n\n\n" },
        { { "/any/folder/room.cpp", 12 }, "Exception occurred in \"room.cpp\" (line 12): \nit broke\n\n\n" },
        { { "C:\\src\\room.cpp", 12 }, "Exception occurred in \"room.cpp\" (line 12): \nit broke\n\n\n" },
    };
    for (const auto& row : rows) {
        CaptureStderr();
        const Exception e ("it broke", row.where);
        EXPECT_EQ (GetCapturedStderr(), row.report);
        EXPECT_STREQ (e.what(), "it broke");
    }
}

TEST (Exception, IsSilentWhenItIsCopiedOrToldToBe)
{
    CaptureStderr();
    const Exception silent ("quiet", {}, false);
    const Exception copy = silent; // NOLINT(performance-unnecessary-copy-initialization): the copy is under test
    EXPECT_STREQ (copy.what(), "quiet");
    EXPECT_EQ (GetCapturedStderr(), "");
}

TEST (Exception, TakesOverTheTextOfAnother)
{
    CaptureStderr();
    const Exception fromStandard (std::runtime_error ("no such room"));
    const Exception again (fromStandard, SourceLocation ("hall.cpp", 3));
    const qel::exceptions::Unknown unknown ((SourceLocation()));
    GetCapturedStderr();

    EXPECT_STREQ (fromStandard.what(), "no such room");
    EXPECT_STREQ (again.what(), "no such room");
    EXPECT_EQ (again.where().toText(), "\"hall.cpp\" (line 3)");
    EXPECT_STREQ (unknown.what(), "Unknown exception");
}

TEST (ExceptionDeathTest, EndsTheProcessIfAskedTo)
{
    GTEST_FLAG_SET (death_test_style, "threadsafe");
    EXPECT_EXIT ({ const Exception last ("no way on", {}, true, true); }, testing::ExitedWithCode (1),
                 "Exception occurred: no way on");
}

namespace
{

/** What a guard around an operation throws, and whether it is the kind for unknown exceptions. */
std::pair<std::string, bool> guarded (qel::GuardText text, void (*operation)())
{
    CaptureStderr();
    std::pair<std::string, bool> outcome{ "nothing", false };
    try {
        qel::guardedGrowth (QEL_HERE, text, operation);
    } catch (const Exception& e) {
        outcome = { e.what(), dynamic_cast<const qel::exceptions::Unknown*> (&e) != nullptr };
    }
    GetCapturedStderr();
    return outcome;
}

}

TEST (GuardedGrowth, TurnsWhatIsRaisedIntoTheFamily)
{
    using qel::GuardText;
    const auto pair = [] (const char* text, bool unknown) { return std::pair<std::string, bool> (text, unknown); };

    EXPECT_EQ (guarded (GuardText::whatAlone, [] {}), pair ("nothing", false));
    EXPECT_EQ (guarded (GuardText::whatOccurred, [] { throw std::bad_alloc(); }), pair ("out of memory", false));
    EXPECT_EQ (guarded (GuardText::whatAlone, [] { throw std::bad_alloc(); }), pair ("out of memory", false));
    EXPECT_EQ (guarded (GuardText::whatOccurred, [] { throw std::length_error ("too long"); }),
               pair ("exception too long occurred", false));
    EXPECT_EQ (guarded (GuardText::whatAlone, [] { throw std::length_error ("too long"); }), pair ("too long", false));
    EXPECT_EQ (guarded (GuardText::whatAlone, [] { throw 1; }), pair ("Unknown exception", true));
}
