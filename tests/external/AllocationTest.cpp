#include "ControlTest.h"
#include "FailingNew.h"

CONTROL_TESTS (Allocation);

namespace
{

/** One good form of each message that is more than a number. */
constexpr const char* messages[] = {
    "gain 3",
    "reverb tr0 4",
    "early start 5",
    "roomsize 3000.",
    "direct gains 1 2 3 4",
    "cluster freqs 300 3000",
    "bang",
    "reset",
    "reset gain",
    "source 1 aed 30 0 1",
    "source 1 name solo",
    "source 1 color 1 0 0 1",
    "source 2 yaw 20",
    "source 2 lookat 0 0 0",
    "speaker 1 xyz 1 2 3",
    "speaker 1 name left",
    "speakers xyz 1 0 0 0 1 0",
    "listener xyz 1 2 3",
    "listener rpy 1 2 3",
    "rotate 0 10 0 0",
    "numareas 2",
    "areas 1 xyz 0 0 0 1 0 0 1 1 0",
    "areas 1 name stage",
    "numanchors 2",
    "anchor 1 xyz 1 1 0",
    "adjustzoom",
    "store a",
    "store b",
    "recall a",
    "xsnapshot a b 0.5",
    "clearsnapshot a",
    "dump",
    "dump gain",
    "dump missing",
    "dumpdict",
    "dumpdict gain tr0",
    "postattributes",
    "version",
    "getgain",
    "getradius",
    "radius 1 2",
    "name left right",
    "sourcecolor 1 0 0 1 0 1 0 1",
    "orientationmode follow follow",
    "sourceslevels -3 -3",
    "speakerslevels -3 -3",
    "sourcespositions 1 2 3 4 5 6",
    "speakerspositions 1 2 3 4 5 6",
    "format xyz",
    "viewpoint front",
    "gridmode square",
    "backgroundcolor 1 0 0 1",
    "windowtitle hall",
    "windowtopleft 5 6",
    "bang foo bar",
    "source foo",
    "early foo 3",
};

}

/** Every allocation by operator new that our own code makes while a message is taken and carried out. */
TEST_P (Allocation, AMessageThatGetsNoMemoryHarmsNothingAndTheNextOneWorks)
{
    auto box = settled ("@numsources 2 @numspeakers 2");
    int failures = 0;
    float gain = 0;
    for (const auto* message : messages) {
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
