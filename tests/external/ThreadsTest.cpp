#include "ControlTest.h"

#include <array>
#include <atomic>
#include <thread>

class Threads : public ControlTest
{
protected:
    TestBox settledWith (const std::array<const char*, 2>& setting)
    {
        auto box = settled ("@numsources 2 @numspeakers 2");
        for (const auto* message : setting)
            box.send (message);
        settle();
        transcript();
        return box;
    }

    void expectAllLeftOnTheMainThread (TestBox& box)
    {
        const auto left = take (bench::Event::Kind::out, box->name);
        EXPECT_GT (left.size(), 30u);
        for (const auto& event : left)
            EXPECT_TRUE (event.onMainThread) << bench::lineOf (event);
        EXPECT_EQ (box.console(), Messages());
        EXPECT_EQ (box.attribute ("gain"), "3.");
        EXPECT_EQ (box.attribute ("showradius"), "1");
    }
};
INSTANTIATE_TEST_SUITE_P (DeferMedium, Threads, bothDeferModes, deferModeName);

namespace
{

constexpr int rounds = 3;

/** One message of each kind that accesses the component, an outlet or a window. */
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

/** Deferred or not, and with the scene repainted or not, in every combination. */
constexpr std::array<const char*, 2> settings[] = {
    { "display 0", "defer 0" },
    { "display 0", "defer 1" },
    { "display 1", "defer 0" },
    { "display 1", "defer 1" },
};

}

TEST_P (Threads, WhatComesFromTheSchedulerLeavesOnTheMainThread)
{
    for (const auto& setting : settings) {
        auto box = settledWith (setting);
        for (const auto* message : messages)
            box.send (message, bench::Thread::scheduler);
        settle();
        expectAllLeftOnTheMainThread (box);
        box.free();
    }
}

TEST_P (Threads, BothAtOnceDisturbNeither)
{
    for (const auto& setting : settings)
        for (const bool honoured : { false, true }) {
            patch.setDeferFlagsAreHonoured (honoured);
            auto box = settledWith (setting);
            patch.postToScheduler ([this, &target = *box] {
                for (int round = 0; round < rounds; ++round)
                    for (const auto* message : messages)
                        patch.send (target, message);
            });
            for (int round = 0; round < rounds; ++round)
                for (const auto* message : messages) {
                    box.send (message);
                    settle();
                }
            patch.runOnScheduler ([] {});
            settle();
            expectAllLeftOnTheMainThread (box);
            EXPECT_EQ (box.attribute ("name"), "\"1\" \"2\"");
            box.free();
        }
}

TEST_P (Threads, ThreeAtOnceSendAndAskEverything)
{
    // Every message; every attribute, set to its own value and queried.
    auto box = settled ("@numsources 2 @numspeakers 2");
    Messages all (std::begin (messages), std::end (messages));
    for (const auto& name : bench::visibleAttributes (*box)) {
        all.push_back (name + " " + box.attribute (name));
        all.push_back ("get" + name);
        all.push_back ("dump " + name);
    }
    all.insert (all.end(), { "defer 0", "defer 1", "display 0", "display 1" });
    const auto sendAll = [this, &all, &target = *box] (std::size_t first) {
        for (std::size_t i = 0; i < all.size(); ++i)
            patch.send (target, all[(first + i) % all.size()]);
    };

    std::atomic<int> working{ 2 };
    patch.postToScheduler ([&] {
        for (int round = 0; round < rounds; ++round)
            sendAll (all.size() / 3);
        --working;
    });
    std::thread third ([&] {
        for (int round = 0; round < rounds; ++round)
            sendAll (2 * all.size() / 3);
        --working;
    });
    for (std::size_t i = 0; working > 0 || i < all.size(); ++i) {
        patch.send (*box, all[i % all.size()]);
        patch.pump();
    }
    third.join();
    settle();

    const auto left = take (bench::Event::Kind::out, box->name);
    EXPECT_GT (left.size(), 1000u);
    for (const auto& event : left)
        EXPECT_TRUE (event.onMainThread || event.outlet == 1) << bench::lineOf (event);
    EXPECT_EQ (box.console(), Messages());
    transcript();
    box.send ("gain -7");
    box.send ("source 1 xyz 1 0 0");
    settle();
    EXPECT_THAT (box.leftOutlet(), testing::Contains ("reverb gain -7."));
    EXPECT_EQ (box.attribute ("sourcespositions").substr (0, 8), "1. 0. 0.");
}
