#include "ControlTest.h"
#include "EveryMessage.h"
#include "FailingNew.h"

#include <string_view>

CONTROL_TESTS (Allocation);

/** Fails every allocation that our own code makes while a message is handled, one at a time. */
TEST_P (Allocation, AMessageThatGetsNoMemoryHarmsNothingAndTheNextOneWorks)
{
    auto box = settled ("@numsources 2 @numspeakers 2");
    int failures = 0;
    float gain = 0;
    for (const auto* message : everyMessage) {
        if (std::string_view (message) == "open")
            continue; // a window is JUCE's, which cannot handle failed allocations
        SCOPED_TRACE (message);
        constexpr int mostAllocations = 3000;
        for (int number = 0; number < mostAllocations; ++number) {
            failAllocation (number);
            box.send (message);
            settle();
            const bool hasFailed = allocationHasFailed();
            failAllocation (-1);
            settle();
            const auto said = box.console();
            if (hasFailed) {
                EXPECT_THAT (said, testing::Contains (testing::StartsWith ("error out of memory"))) << number;
            }
            transcript();
            if (! hasFailed)
                break;
            ++failures;
            gain = gain > 20 ? -20.0f : gain + 0.5f;
            box.send ("gain " + std::to_string (gain));
            settle();
            EXPECT_THAT (box.leftOutlet(), testing::Contains (testing::StartsWith ("reverb gain "))) << number;
        }
    }
    std::printf ("%d allocations failed\n", failures);
    EXPECT_GT (failures, 170);
}

TEST_P (Allocation, ACreationThatGetsNoMemoryIsReportedAndTheNextOneWorks)
{
    const auto create = [this] {
        auto box = make ("halcyra~.control @numsources 2 @numspeakers 2");
        settle();
        return box;
    };
    create().free();
    int refused = 0, failures = 0;
    constexpr int mostAllocations = 20000;
    for (int number = 0; number < mostAllocations; ++number) {
        console();
        failAllocation (number);
        auto box = create();
        const bool hasFailed = allocationHasFailed();
        failAllocation (-1);
        if (! hasFailed)
            break;
        ++failures;
        const auto said = console();
        EXPECT_THAT (said, testing::Not (testing::IsEmpty())) << number;
        if (! box) {
            ++refused;
            EXPECT_THAT (said, testing::Contains (testing::HasSubstr ("couldnt create object"))) << number;
        } else
            box.free();
        auto next = create();
        ASSERT_TRUE (next) << number;
        next.send ("gain 3");
        settle();
        EXPECT_THAT (next.leftOutlet(), testing::Contains ("reverb gain 3.")) << number;
        next.free();
        transcript();
    }
    std::printf ("%d allocations failed, %d objects were refused\n", failures, refused);
    EXPECT_GT (refused, 10);
}
