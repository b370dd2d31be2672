#pragma once
#include "host/bench/Bench.h"
#include "host/bench/Inspect.h"
#include <gmock/gmock.h>
#include <mutex>

using Messages = std::vector<std::string>;

class BenchTest;

/** A box in a test: sends, and what came of it as texts. Each look at an outlet or the console takes what is
    there, so the next look shows what came since. */
class TestBox
{
public:
    TestBox (BenchTest& owner, bench::Box* made) : test (&owner), box (made) {}

    /** False if the creation gave no object. */
    explicit operator bool() const { return box != nullptr; }

    /** Sends "gain 3" to the inlet; nothing is pumped. */
    void send (const std::string& message, bench::Thread thread = bench::Thread::main);
    void send (const std::string& selector, const bench::Atoms& atoms, bench::Thread thread = bench::Thread::main);

    /** Messages of outlet 0, the leftmost, and of the rightmost one: "reverb gain 3." */
    Messages leftOutlet();
    Messages dumpOutlet();

    /** Entries of the dictionaries that left, as seen during the call: "gain 3." */
    Messages dictionaryEntries();

    /** Rows of this box in the Max window: "error TEXT", "post TEXT", ... */
    Messages console();

    /** Symbols of the notifications: "modified", "attr_modified", ... */
    Messages notifications();

    /** What the window did: "created 800 50 935 462 Halcyra", "shown", ... */
    Messages window();

    /** Value of an attribute as text, "3. 4."; "no such attribute" if there is none. */
    std::string attribute (const std::string& name) const;
    std::string property (const std::string& attribute, const std::string& property) const;

    void free();

    /** The object's record. */
    template <typename Record>
    Record* record() const
    {
        return reinterpret_cast<Record*> (box->object);
    }

    bench::Box& operator*() const { return *box; }
    bench::Box* operator->() const { return box; }

private:
    BenchTest* test;
    bench::Box* box;
};

/** A test on the bench. A test of a product's class loads its entry point in the constructor:

        class ReverbMessages : public BenchTest { protected: ReverbMessages() { patch.load (ext_main); } };
        auto box = make ("halcyra~.control @numsources 3");
        box.send ("gain 3");
        settle();
        EXPECT_EQ (box.leftOutlet(), Messages { "reverb gain 3." });

    With a GUI, link the main that installs its bench::WindowDriver: settle() then pumps it too. */
class BenchTest : public testing::Test
{
public:
    explicit BenchTest (bench::DeferMedium deferMedium = bench::DeferMedium::queue);
    ~BenchTest() override;

    /** Makes a box named b1, b2, ... */
    TestBox make (const std::string& text);

    void settle() { patch.settle(); }

    /** Rows of the Max window of all boxes and of none: "error TEXT". */
    Messages console();

    /** Takes the events of a kind, of one box or, with an empty name, of all. */
    std::vector<bench::Event> take (bench::Event::Kind kind, const std::string& box);

    /** Everything that happened and was not taken yet, as the bench's language writes it; takes it. */
    Messages transcript();

    bench::Bench patch;

private:
    friend class TestBox;
    std::vector<bench::Event> takeIf (const std::function<bool (const bench::Event&)>& wanted);

    std::mutex mutex;
    std::vector<bench::Event> events;
    int boxes = 0;
};

/** The same tests with deferred calls queued and run at once:

        class Lifecycle : public BenchTestInBothModes {};
        TEST_P (Lifecycle, ...) {...}
        INSTANTIATE_TEST_SUITE_P (DeferMedium, Lifecycle, bothDeferModes, deferModeName); */
class BenchTestInBothModes : public BenchTest, public testing::WithParamInterface<bench::DeferMedium>
{
public:
    BenchTestInBothModes() : BenchTest (GetParam()) {}
};

namespace bench
{
inline void PrintTo (DeferMedium mode, std::ostream* out)
{
    *out << (mode == DeferMedium::queue ? "queued" : "at once");
}
}

inline const auto bothDeferModes = testing::Values (bench::DeferMedium::queue, bench::DeferMedium::now);

inline std::string deferModeName (const testing::TestParamInfo<bench::DeferMedium>& info)
{
    return info.param == bench::DeferMedium::queue ? "queued" : "atOnce";
}
