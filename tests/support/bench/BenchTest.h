#pragma once
#include "host/bench/Bench.h"
#include "host/bench/Inspect.h"
#include <gmock/gmock.h>
#include <mutex>
#include <set>

using Messages = std::vector<std::string>;

class BenchTest;

/** A box in a test: sends, and returns its output as text. Reading an outlet or the console removes what it returns, so
    the next read has only what is new. */
class TestBox
{
public:
    TestBox (BenchTest& owner, bench::Box* made) : test (&owner), box (made) {}

    /** False if the creation returned no object. */
    explicit operator bool() const { return box != nullptr; }

    /** Sends "gain 3" to the inlet without pumping. */
    void send (const std::string& message, bench::Thread thread = bench::Thread::main);
    void send (const std::string& selector, const bench::Atoms& atoms, bench::Thread thread = bench::Thread::main);

    /** Messages from outlet 0, the leftmost, and from the rightmost one: "reverb gain 3." */
    Messages leftOutlet();
    Messages dumpOutlet();

    /** Entries of the dictionaries sent, as read during the call: "gain 3." */
    Messages dictionaryEntries();

    /** This box's rows in the Max console: "error TEXT", "post TEXT", ... */
    Messages console();

    /** Symbols of the notifications: "modified", "attr_modified", ... */
    Messages notifications();

    /** Events of its window: "created 800 50 935 462 Halcyra", "shown", ... */
    Messages window();

    /** An attribute's value as text, "3. 4."; "no such attribute" if there is none. */
    std::string attribute (const std::string& name) const;
    std::string property (const std::string& attribute, const std::string& property) const;

    void free();

    /** The object's struct. */
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

    /** Creates a box named b1, b2, ... */
    TestBox make (const std::string& text);

    void settle() { patch.settle(); }

    /** As bench::putEntry(), but the dictionary ends with the test: names are the process's. */
    void putEntry (const std::string& dictionary, const std::string& key, const bench::Atoms& atoms);
    /** Ends them now. */
    void freeDictionaries();

    /** Rows of the Max console, of all boxes and of none: "error TEXT". */
    Messages console();

    /** Takes the events of a kind, of one box or, if the name is empty, of all. */
    std::vector<bench::Event> take (bench::Event::Kind kind, const std::string& box);

    /** Takes all remaining events, in the bench's language. */
    Messages transcript();

    bench::Bench patch;

private:
    friend class TestBox;
    std::vector<bench::Event> takeIf (const std::function<bool (const bench::Event&)>& wanted);

    std::mutex mutex;
    std::vector<bench::Event> events;
    int boxes = 0;
    std::set<std::string> dictionaries;
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
