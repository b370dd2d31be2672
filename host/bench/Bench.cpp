#include "host/bench/Bench.h"
#include "host/bench/AttributeArguments.h"
#include "host/bench/Attributes.h"
#include "host/bench/Console.h"
#include "host/bench/Doze.h"
#include "host/bench/Files.h"
#include "host/bench/HostCalls.h"
#include "host/bench/MainQueue.h"
#include "host/bench/Outlets.h"
#include "host/bench/Scheduler.h"
#include "host/bench/Symbols.h"
#include "host/bench/WindowDriver.h"
#include <algorithm>
#include <chrono>
#include <unordered_set>

namespace bench
{

namespace
{
/** A box plus what only the host needs. */
struct PlacedBox
{
    Box box;
    BoxRecord* record = nullptr;
};

void tellWindow (void* object, const std::string& what)
{
    // While it is being destroyed, a window may outlive its object.
    tell (Event::Kind::window, object, what);
}

/** Calls `new`: with the attribute dictionary if the class wants one, otherwise with all words as atoms. */
t_object* instantiate (t_class* c, const std::vector<Word>& words)
{
    if ((c->c_flags & CLASS_FLAG_NEWDICTIONARY) == 0)
        return static_cast<t_object*> (callNew (c->c_newmess, c->c_sym, atomsOf (words)));
    const auto arguments = splitArguments (words);
    auto* d = makeAttributeDictionary (*recordOf (c), arguments);
    auto atoms = arguments.plain;
    atoms.emplace_back();
    atom_setobj (&atoms.back(), d);
    auto* object = static_cast<t_object*> (callNew (c->c_newmess, c->c_sym, atoms));
    object_free (d);
    return object;
}
}

struct Bench::Patch
{
    std::vector<std::unique_ptr<PlacedBox>> boxes;
    bool held = false;

    /** Pumps when there is work and sleeps otherwise, until the time is over or the input is readable. */
    void letTimePass (Bench& bench, std::chrono::milliseconds time, int input, const std::function<bool()>& goesOn);

    t_object* create (t_class* c, BoxRecord& record, const std::vector<Word>& words)
    {
        Creation creation (c, record);
        auto* object = instantiate (c, words);
        auto* head = headOf (object);
        if (head == nullptr) {
            creation.abandon();
            return nullptr;
        }
        head->box = &record;
        return object;
    }
};

Bench::Bench (DeferMedium deferMedium) : patch (std::make_unique<Patch>())
{
    MainQueue::thisIsTheMainThread();
    MainQueue::instance().setDeferMedium (deferMedium);
    Scheduler::instance().start();
    if (auto* driver = windowDriver())
        driver->setSink (tellWindow);
}

Bench::~Bench()
{
    while (! patch->boxes.empty())
        free (&patch->boxes.back()->box);
    release();
    if (auto* driver = windowDriver())
        driver->setSink ({});
    Scheduler::instance().stop();
    MainQueue::instance().clear();
    forgetDialogAnswers();
    clearTranslations();
    bench::setMissingPropertyIsError (false);
    bench::setDeferFlagsAreHonoured (false);
    setRecordListener ({});
    takeRecorded();
}

void Bench::load (Entry entry)
{
    static auto& loaded = *new std::unordered_set<Entry>;
    if (! loaded.insert (entry).second)
        return;
    if (const auto result = entry (nullptr); result != 0)
        tell (Event::Kind::error, nullptr, "error " + std::to_string (result) + " loading external");
}

Box* Bench::make (const std::string& name, const std::string& text) { return make (name, wordsOf (text)); }

Box* Bench::make (const std::string& name, std::vector<Word> words)
{
    const auto className = words.empty() ? std::string() : words.front().text;
    if (! words.empty())
        words.erase (words.begin());
    auto* c = class_findbyname (CLASS_BOX, gensym (className.c_str()));
    auto placed = std::make_unique<PlacedBox>();
    if (c != nullptr && find (name) == nullptr) {
        placed->record = makeBoxRecord (name);
        placed->box = { name, patch->create (c, *placed->record, words) };
    }
    if (placed->box.object != nullptr)
        return &patch->boxes.emplace_back (std::move (placed))->box;

    object_free (placed->record);
    Event event;
    event.box = name;
    if (c == nullptr) {
        event.kind = Event::Kind::error;
        event.text = className + ": No such object";
        record (event);
    }
    event.kind = Event::Kind::newFailed;
    record (event);
    return nullptr;
}

void Bench::free (Box* box)
{
    const auto found = std::find_if (patch->boxes.begin(), patch->boxes.end(),
                                     [=] (const auto& placed) { return &placed->box == box; });
    if (found == patch->boxes.end())
        return;
    for (const auto& other : patch->boxes)
        for (int i = 0; auto* outlet = outletAt (other->box.object, i); ++i)
            removeCord (*outlet, box->object);
    auto* record = (*found)->record;
    object_free (box->object);
    object_free (record);
    patch->boxes.erase (found);
}

Box* Bench::find (const std::string& name) const
{
    for (const auto& placed : patch->boxes)
        if (placed->box.name == name)
            return &placed->box;
    return nullptr;
}

std::vector<std::string> Bench::names() const
{
    std::vector<std::string> all;
    for (const auto& placed : patch->boxes)
        all.push_back (placed->box.name);
    return all;
}

void Bench::send (Box& box, const std::string& message, Thread thread)
{
    const auto parsed = messageOf (wordsOf (message));
    send (box, parsed.selector, parsed.atoms, thread);
}

void Bench::send (Box& box, t_symbol* selector, const Atoms& atoms, Thread thread)
{
    if (thread == Thread::main)
        deliver (box.object, selector, atoms);
    else
        runOnScheduler ([&] { deliver (box.object, selector, atoms); });
}

bool Bench::connect (Box& from, int outlet, Box& to)
{
    auto* found = outletAt (from.object, outlet);
    if (found != nullptr)
        addCord (*found, to.object);
    return found != nullptr;
}

bool Bench::disconnect (Box& from, int outlet, Box& to)
{
    auto* found = outletAt (from.object, outlet);
    return found != nullptr && removeCord (*found, to.object);
}

void Bench::settle()
{
    // Queue and scheduler finish by themselves; a GUI that is never idle must not keep us here forever.
    constexpr int mostRounds = 10000;
    bool busy = ! patch->held;
    for (int round = 0; busy && round < mostRounds; ++round) {
        busy = false;
        while (MainQueue::instance().runOne())
            busy = true;
        busy = Scheduler::instance().settle() || busy;
        if (auto* driver = windowDriver(); driver != nullptr && ! busy)
            busy = driver->pump();
    }
}

void Bench::pump()
{
    while (MainQueue::instance().runOne()) {
    }
    if (auto* driver = windowDriver())
        driver->pump();
}

void Bench::hold() { patch->held = true; }
bool Bench::isHeld() const { return patch->held; }

void Bench::release()
{
    patch->held = false;
    settle();
}

void Bench::wait (int milliseconds) { patch->letTimePass (*this, std::chrono::milliseconds (milliseconds), -1, {}); }

void Bench::waitFor (int milliseconds, int descriptor, const std::function<bool()>& goesOn)
{
    const auto time =
        milliseconds == forEver ? std::chrono::milliseconds::max() : std::chrono::milliseconds (milliseconds);
    patch->letTimePass (*this, time, descriptor, goesOn);
}

void Bench::Patch::letTimePass (Bench& bench, std::chrono::milliseconds time, int input,
                                const std::function<bool()>& goesOn)
{
    using Clock = std::chrono::steady_clock;
    using Milliseconds = std::chrono::milliseconds;
    auto& scheduler = Scheduler::instance();
    const auto start = Clock::now();
    const auto elapsed = [&] { return std::min (time, std::chrono::floor<Milliseconds> (Clock::now() - start)); };
    bool isOver = goesOn && ! goesOn();
    for (Milliseconds passed (0); passed < time && ! isOver;) {
        bench.settle();
        const auto next = passed + std::min (time - passed, Milliseconds (scheduler.untilNextEvent()));
        // While held, GUI messages are not delivered, so pending ones would keep us from sleeping.
        auto* const driver = held ? nullptr : windowDriver();
        isOver = doze (std::max (next - elapsed(), Milliseconds (0)),
                       driver == nullptr ? std::vector<int>() : driver->descriptors(), input);
        // hold() does not stop the scheduler, a thread of its own; whatever it is running finishes first.
        const auto now = elapsed();
        scheduler.advance (static_cast<int> ((now - passed).count()));
        passed = now;
        scheduler.settle();
        bench.settle();
        isOver = (goesOn && ! goesOn()) || isOver;
    }
}

void Bench::runOnScheduler (const std::function<void()>& task) { Scheduler::instance().run (task); }
void Bench::postToScheduler (std::function<void()> task) { Scheduler::instance().post (std::move (task)); }
std::vector<Event> Bench::takeEvents() { return takeRecorded(); }
void Bench::setListener (std::function<void (const Event&)> listener) { setRecordListener (std::move (listener)); }
void Bench::answerDialog (std::optional<std::string> path) { addDialogAnswer (std::move (path)); }

void Bench::translate (const std::string& text, const std::string& translation) { setTranslation (text, translation); }

void Bench::setMissingPropertyIsError (bool isError) { bench::setMissingPropertyIsError (isError); }
void Bench::setDeferFlagsAreHonoured (bool areHonoured) { bench::setDeferFlagsAreHonoured (areHonoured); }

}
