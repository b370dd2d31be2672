#include "external/HalcyraControl.h"
#include "host/bench/Bench.h"
#include "host/bench/Inspect.h"
#include "host/bench/window/JuceWindowDriver.h"
#include "support/files/ScratchFolder.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <thread>

#include <malloc.h>

// Sends 6,400 messages a second to one object, half of them from the scheduler thread, and expects one answer to each;
// meanwhile windows open and close, objects are created and freed, files written and read, states recalled. After each
// act, memory, handles, threads and windows must be back to where they were.

namespace
{

using Clock = std::chrono::steady_clock;

constexpr auto beat = std::chrono::milliseconds (10);
constexpr int messagesABeat = 32; // per thread
constexpr int beatsAnAct = 50;    // half a second
constexpr int actsToWarmUp = 3;   // caches fill, symbols are made
constexpr double memoryMayGrow = 256 * 1024;
constexpr double nameOfADictionary = 128; // at most: each dumpdict makes a name of its own, and symbols are never freed

/** One thread's messages: a filter and a source alternating, each different from the one before. */
class Stream
{
public:
    Stream (const char* filter, int source) : filterName (gensym (filter)), index (source) {}

    void send (bench::Bench& patch, bench::Box& box)
    {
        for (int i = 0; i < messagesABeat; ++i) {
            const double value = 1 + 0.25 * (++step % 40);
            bench::Atoms atoms (6);
            for (auto& atom : atoms)
                atom_setfloat (&atom, value);
            if (i % 2 == 0) {
                atom_setfloat (&atoms[4], 200 + value);
                atom_setfloat (&atoms[5], 3000 + value);
                patch.send (box, filterName, atoms);
            } else {
                atom_setlong (&atoms[0], index);
                atom_setsym (&atoms[1], gensym ("xyz"));
                atoms.resize (5);
                patch.send (box, gensym ("source"), atoms);
            }
        }
        sent += messagesABeat;
    }

    std::atomic<long> sent{ 0 };

private:
    t_symbol* filterName;
    int index;
    int step = 0;
};

struct Resources
{
    double memory; // bytes in use
    long handles, threads, windows;

    static Resources present()
    {
        const auto count = [] (const char* folder) {
            return static_cast<long> (std::distance (std::filesystem::directory_iterator (folder), {}));
        };
        return { static_cast<double> (mallinfo2().uordblks), count ("/proc/self/fd"), count ("/proc/self/task"),
                 static_cast<long> (juce::ComponentPeer::getNumPeers()) };
    }
};

class Soak
{
public:
    Soak()
    {
        std::filesystem::current_path (folder / "");
        patch.load (ext_main);
        patch.setListener ([this] (const bench::Event& event) { hear (event); });
        steady = patch.make ("steady", "halcyra~.control @numsources 2 @numspeakers 4");
        makeGuest();
        patch.settle();
        echoes = 0;
    }

    /** An act: the stream of messages plus one other action per beat. Later beats catch up on late ones. */
    void act()
    {
        for (int i = 0; i < beatsAnAct; ++i) {
            patch.postToScheduler ([this] { fromScheduler.send (patch, *steady); });
            fromMain.send (patch, *steady);
            patch.pump();
            happen (i);
            patch.pump();
            next += beat;
            if (Clock::now() > next)
                ++lateBeats;
            std::this_thread::sleep_until (next);
        }
        patch.runOnScheduler ([] {});
        patch.settle();
        sendTo (guest, "wclose");
        patch.settle();
        ++acts;
    }

    [[nodiscard]] long sent() const { return fromMain.sent + fromScheduler.sent; }

    bench::Bench patch;
    std::atomic<long> echoes{ 0 }, others{ 0 }, complaints{ 0 };
    long acts = 0, lateBeats = 0, made = 0, dictionaries = 0;

private:
    void hear (const bench::Event& event)
    {
        using Kind = bench::Event::Kind;
        if (event.kind == Kind::out && event.box == "steady")
            ++(event.outlet == 0 ? echoes : others);
        else if (event.kind == Kind::error || event.kind == Kind::bug || event.kind == Kind::newFailed) {
            ++complaints;
            std::cerr << bench::lineOf (event) << '\n';
        } else
            ++others;
    }

    void makeGuest()
    {
        guest = patch.make ("guest", "halcyra~.control @numsources 8 @numspeakers 5");
        ++made;
    }

    void sendTo (bench::Box* box, const char* message) { patch.send (*box, message); }

    void happen (int number)
    {
        constexpr const char* messages[] = {
            "open",
            "wclose",
            "open",
            "store a",
            "reset",
            "recall a",
            "store b",
            "source 3 xyz 1 2 0",
            "xsnapshot a b 0.5",
            "dump",
            "dumpdict",
            "writesnapshot a.xml",
            "clearsnapshot",
            "readsnapshot a.xml",
            "recall b",
            "exportdict a.json",
            "roomsize 900.",
            "zoom 2",
            "viewpoint front",
            "viewpoint top",
            "adjustzoom",
        };
        const auto place = static_cast<std::size_t> (number) % std::size (messages);
        sendTo (guest, messages[place]);
        if (messages[place] == std::string_view ("dumpdict"))
            ++dictionaries;
        if (place + 1 == std::size (messages)) { // another replaces it while its window is open
            patch.free (guest);
            makeGuest();
        }
        switch (number % 10) {
        case 2:
            bench::windowDriver()->turnPage (guest->object, number / 10 % 3);
            break;
        case 4:
            drag();
            break;
        case 6:
            recallState();
            break;
        case 8:
            for (int i = 0; i < juce::ComponentPeer::getNumPeers(); ++i)
                juce::ComponentPeer::getPeer (i)->performAnyPendingRepaintsNow();
            break;
        default:
            break;
        }
    }

    void drag()
    {
        using Action = bench::PointerEvent::Action;
        bench::PointerEvent event;
        event.x = 138;
        event.y = 241;
        for (const auto action : { Action::down, Action::drag, Action::up }) {
            event.action = action;
            event.x += 10;
            bench::windowDriver()->pointer (guest->object, event);
        }
        bench::windowDriver()->key (guest->object, "ctrl + z");
    }

    void recallState()
    {
        if (const auto state = bench::stateOf (*guest))
            bench::setState (*guest, *state);
    }

    const ScratchFolder folder;
    Stream fromMain{ "direct", 1 }, fromScheduler{ "room", 2 };
    bench::Box *steady = nullptr, *guest = nullptr;
    Clock::time_point next = Clock::now();
};

}

/** Soaks for a number of seconds, prints the figures, and fails on any loss, leak or complaint. */
int main (int argc, char** argv)
{
    const double seconds = argc == 2 ? std::atof (argv[1]) : 0;
    if (! (seconds > 0)) {
        std::cerr << "usage: soak SECONDS\n";
        return 2;
    }
    bench::JuceWindowDriver windows (bench::JuceWindowDriver::Place::memory);
    bench::setWindowDriver (&windows);
    int faults = 0;
    {
        Soak soak;
        const auto start = Clock::now();
        const auto elapsed = [&] { return std::chrono::duration<double> (Clock::now() - start).count(); };
        Resources before{};
        while (elapsed() < seconds || soak.acts <= actsToWarmUp) {
            soak.act();
            if (soak.acts == actsToWarmUp)
                before = Resources::present();
        }
        const auto after = Resources::present();
        const auto tell = [&faults] (const char* what, double had, double has, double mayGrow) {
            const bool isWell = has <= had + mayGrow;
            faults += isWell ? 0 : 1;
            std::printf ("%-10s %14.0f %14.0f%s\n", what, had, has, isWell ? "" : "  FAULT");
        };
        std::printf ("%.0f s, %ld messages, %ld a second; %ld echoes, %ld other events; %ld acts, %ld objects made; "
                     "%ld beats late\n",
                     elapsed(), soak.sent(), std::lround (static_cast<double> (soak.sent()) / elapsed()),
                     soak.echoes.load(), soak.others.load(), soak.acts, soak.made, soak.lateBeats);
        tell ("memory", before.memory, after.memory,
              memoryMayGrow + nameOfADictionary * static_cast<double> (soak.dictionaries));
        tell ("handles", static_cast<double> (before.handles), static_cast<double> (after.handles), 0);
        tell ("threads", static_cast<double> (before.threads), static_cast<double> (after.threads), 0);
        tell ("windows", static_cast<double> (before.windows), static_cast<double> (after.windows), 0);
        tell ("complaints", 0, static_cast<double> (soak.complaints), 0);
        tell ("lost", 0, static_cast<double> (std::labs (soak.sent() - soak.echoes)), 0);
    }
    bench::setWindowDriver (nullptr);
    return faults == 0 ? 0 : 1;
}
