#include "ExampleClass.h"
#include "support/bench/BenchTest.h"
#include <atomic>
#include <thread>

namespace
{
using bench::Thread;

class BenchQueues : public BenchTestInBothModes
{
protected:
    BenchQueues() { patch.load (example_main); }

    [[nodiscard]] bool mediumQueues() const { return GetParam() == bench::DeferMedium::queue; }
};

INSTANTIATE_TEST_SUITE_P (DeferMedium, BenchQueues, bothDeferModes, deferModeName);

TEST_P (BenchQueues, RunADeferredCallOnTheMainThreadWhoeverAsked)
{
    auto box = make ("bench.example");
    for (const auto* message : { "defer 1 2", "medium 1 2", "low 1 2" })
        for (const auto thread : { Thread::main, Thread::scheduler }) {
            box.record<t_example>()->ranOnMain = 0;
            box.send (message, thread);
            settle();
            EXPECT_EQ (box.record<t_example>()->ranOnMain, 1) << message;
            EXPECT_EQ (box.record<t_example>()->lastCount, 2) << message;
        }
    for (const auto& event : take (bench::Event::Kind::out, ""))
        EXPECT_TRUE (event.onMainThread);
}

TEST_P (BenchQueues, DecideByTheThreadWhetherACallIsQueued)
{
    struct Row
    {
        const char* message;
        Thread thread;
        bool isQueued;
    };
    const Row rows[] = {
        { "defer", Thread::main, false },
        { "defer", Thread::scheduler, true },
        { "medium", Thread::main, mediumQueues() },
        { "medium", Thread::scheduler, true },
        { "low", Thread::main, true },
        { "low", Thread::scheduler, true },
    };
    auto box = make ("bench.example");
    for (const auto& row : rows) {
        box.send (row.message, row.thread);
        EXPECT_EQ (box.leftOutlet().empty(), row.isQueued) << row.message;
        settle();
        box.leftOutlet();
    }
}

TEST_P (BenchQueues, RunAThirdThreadsDeferInThatVeryThread)
{
    auto box = make ("bench.example");
    std::thread ([&] { box.send ("defer 1"); }).join();
    EXPECT_EQ (box.record<t_example>()->ranOnMain, 0);
    std::thread ([&] { box.send ("low 1"); }).join();
    settle();
    EXPECT_EQ (box.record<t_example>()->ranOnMain, 1);
}

TEST_P (BenchQueues, DropWhatWaitsForAFreedObject)
{
    const auto freedBefore = exampleObjectsFreed();
    auto box = make ("bench.example");
    auto other = make ("bench.example");
    for (const auto* message : { "low 1", "medium 2", "qelem", "delay 5" })
        for (auto* each : { &box, &other })
            each->send (message, Thread::scheduler);
    static int ran;
    ran = 0;
    void (*const count) (void*, t_symbol*, short, t_atom*) = [] (void*, t_symbol*, short, t_atom*) { ++ran; };
    for (auto* each : { &box, &other })
        defer_low ((*each)->object, reinterpret_cast<method> (reinterpret_cast<void (*)()> (count)), nullptr, 0,
                   nullptr);
    box.free();
    other.leftOutlet();
    patch.wait (5);
    EXPECT_EQ (other.leftOutlet().size(), 4u);
    EXPECT_EQ (take (bench::Event::Kind::out, "").size(), 0u);
    EXPECT_EQ (exampleObjectsFreed(), freedBefore + 1);
    EXPECT_EQ (ran, 1) << "the other's";
}

TEST_P (BenchQueues, RunAQueueElementOnceHoweverOftenItWasSet)
{
    auto box = make ("bench.example");
    for (int i = 0; i < 5; ++i)
        box.send ("qelem");
    settle();
    EXPECT_EQ (box.leftOutlet(), Messages{ "tick" });
    box.send ("qelem");
    settle();
    EXPECT_EQ (box.leftOutlet(), Messages{ "tick" });
    qelem_set (nullptr); // allowed: many objects never created their element
}

TEST_P (BenchQueues, EndALoopThroughTheQueueWithTheHostsMessage)
{
    auto box = make ("bench.example");
    ASSERT_TRUE (patch.connect (*box, 0, *box));
    box.send ("medium 1");
    settle();
    EXPECT_EQ (box.console(), Messages{ "error stack overflow" });
    patch.disconnect (*box, 0, *box);
    box.leftOutlet();
    box.send ("medium 1");
    settle();
    EXPECT_EQ (box.leftOutlet(), Messages{ "medium 1" });
}

TEST_P (BenchQueues, EndALoopOfCordsWithTheHostsMessageOnAnyThread)
{
    auto box = make ("bench.example");
    ASSERT_TRUE (patch.connect (*box, 0, *box));
    for (const auto thread : { Thread::main, Thread::scheduler }) {
        box.send ("echo 1", thread);
        EXPECT_EQ (box.console(), Messages{ "error stack overflow" });
        EXPECT_GT (box.leftOutlet().size(), 50u);
    }
}

TEST_P (BenchQueues, SendNothingToABoxThatTheMessageBeforeHasFreed)
{
    auto sender = make ("bench.example"), one = make ("bench.example"), other = make ("bench.example");
    ASSERT_TRUE (patch.connect (*sender, 0, *one));
    ASSERT_TRUE (patch.connect (*sender, 0, *other));
    Messages heard;
    patch.setListener ([&] (const bench::Event& event) {
        if (event.box == sender->name)
            return;
        heard.push_back (event.text);
        patch.free (event.box == one->name ? &*other : &*one);
    });
    sender.send ("echo 1");
    patch.setListener ([] (const bench::Event&) {});
    EXPECT_EQ (heard, Messages{ "echo" });
}

TEST_P (BenchQueues, HoldBackUntilReleased)
{
    auto box = make ("bench.example");
    patch.hold();
    box.send ("low 1");
    settle();
    EXPECT_TRUE (box.leftOutlet().empty());
    patch.release();
    EXPECT_EQ (box.leftOutlet(), Messages{ "low 1" });
}

TEST_P (BenchQueues, KeepEveryCallAndTheirOrderWhileTheSchedulerRunsBesides)
{
    constexpr int number = 500;
    auto box = make ("bench.example");
    patch.postToScheduler ([&] {
        for (int i = 0; i < number; ++i)
            box.send ("low " + std::to_string (i));
    });
    for (int i = 0; i < number; ++i) {
        settle();
        box.send ("post");
        gensym (("other " + std::to_string (i)).c_str());
    }
    settle();
    Messages expected;
    expected.reserve (number);
    for (int i = 0; i < number; ++i)
        expected.push_back ("low " + std::to_string (i));
    EXPECT_EQ (box.leftOutlet(), expected);
}

TEST (BenchThreads, InternOneSymbolForAllAndKeepEveryRowOfTheWindow)
{
    bench::Bench patch;
    std::atomic<int> same{ 0 };
    std::vector<std::thread> threads;
    threads.reserve (4);
    for (int t = 0; t < 4; ++t)
        threads.emplace_back ([&] {
            for (int i = 0; i < 200; ++i) {
                const auto text = "shared " + std::to_string (i);
                same += gensym (text.c_str()) == gensym (text.c_str()) ? 1 : 0;
                post ("%d", i);
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ (same, 800);
    EXPECT_EQ (patch.takeEvents().size(), 800u);
}

TEST (BenchLoading, ReportsAnExternalThatRefuses)
{
    bench::Bench patch;
    patch.load ([] (void*) -> t_clong { return 7; });
    const auto events = patch.takeEvents();
    ASSERT_EQ (events.size(), 1u);
    EXPECT_EQ (bench::lineOf (events.front()), "- error error 7 loading external");
}

TEST (BenchThreads, MoveTheSchedulersClockByWaitingAlone)
{
    bench::Bench patch;
    patch.load (example_main);
    auto* box = patch.make ("a", "bench.example");
    patch.takeEvents();
    patch.send (*box, "delay 30");
    patch.settle();
    patch.wait (29);
    EXPECT_TRUE (patch.takeEvents().empty());
    patch.wait (1);
    EXPECT_EQ (patch.takeEvents().size(), 1u);
}
}
