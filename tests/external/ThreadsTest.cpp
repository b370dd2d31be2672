#include "ControlTest.h"

CONTROL_TESTS (Threads);

namespace
{

/** One message of each kind that touches the component, an outlet or a window. */
constexpr const char* messages[] = {
    "gain 3",
    "reverb tr0 4",
    "direct gains 1 2 3 4",
    "early width 50",
    "bang",
    "source 1 aed 30 0 1",
    "source 2 color 1 0 0 1",
    "speaker 1 xyz 1 2 3",
    "speakers xyz 1 0 0 0 1 0",
    "listener xyz 1 2 3",
    "listener yaw 9",
    "zoom 2",
    "showradius 1",
    "sourceslevels -3 -3",
    "speakerslevels -3 -3",
    "format xyz",
    "yaw 10 20",
    "store a",
    "recall a",
    "rotate 0 10 0 0",
    "adjustzoom",
    "windowtopleft 5 6",
    "windowtitle hall",
    "dump gain",
    "dump",
    "dumpdict gain",
    "open",
    "wclose",
    "sourcespositions 1 2 3 4 5 6",
    "sourcecolor 1 0 0 1 0 1 0 1",
    "backgroundcolor 1 0 0 1",
};

}

TEST_P (Threads, WhatComesFromTheSchedulerLeavesOnTheMainThread)
{
    for (const auto* display : { "display 0", "display 1" })
        for (const auto* defer : { "defer 0", "defer 1" }) {
            auto box = settled ("@numsources 2 @numspeakers 2");
            box.send (display);
            box.send (defer);
            settle();
            transcript();
            for (const auto* message : messages)
                box.send (message, bench::Thread::scheduler);
            settle();
            const auto left = take (bench::Event::Kind::out, box->name);
            EXPECT_GT (left.size(), 30u);
            for (const auto& event : left)
                EXPECT_TRUE (event.onMainThread) << bench::lineOf (event);
            EXPECT_EQ (box.attribute ("gain"), "3.");
            EXPECT_EQ (box.attribute ("showradius"), "1");
            box.free();
        }
}

TEST_P (Threads, BothAtOnceDisturbNeither)
{
    auto box = settled ("@numsources 2 @numspeakers 2");
    for (const auto* defer : { "defer 0", "defer 1" }) {
        box.send (defer);
        for (int i = 0; i < 20; ++i) {
            auto& target = *box;
            patch.postToScheduler ([this, &target, i] {
                patch.send (target, std::string ("gain ") + std::to_string (i % 7));
                patch.send (target, "source 1 aed " + std::to_string (10 * i) + " 0 1");
            });
            box.send ("source 2 aed " + std::to_string (i) + " 0 2");
            box.send ("tr0 " + std::to_string (1 + i % 5));
            settle();
        }
    }
    patch.runOnScheduler ([] {});
    settle();
    EXPECT_EQ (box.console(), Messages());
    EXPECT_EQ (box.attribute ("name"), "\"1\" \"2\"");
}
