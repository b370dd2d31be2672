#include "host/pd/Box.h"
#include "host/api/MaxApi.h"
#include "host/bench/Bench.h"
#include "host/bench/Files.h"
#include "host/bench/Inspect.h"
#include "host/bench/MainQueue.h"
#include "host/bench/Words.h"
#include "host/pd/FileMessages.h"
#include "host/pd/MessageLoop.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <utility>

MAX_EXPORT t_clong ext_main (void*);

namespace pdhost
{

struct Box::Inside
{
    bench::Box* box = nullptr;
    Listener* listener = nullptr;
    std::vector<std::pair<std::string, bench::Atoms>> fresh; // the state right after creation
    std::string folder;
    bool lacksDisplay = false; // and this has been logged

    void take (const NamedValues& saved, bench::Atoms& present) const;
};

/** One bench for all objects of the process. Never destroyed: Pd may call exit() at any point. */
struct Host
{
    bench::Bench bench;
    std::map<std::string, Box::Inside*> byName;
    std::vector<bench::Box*> released;
    int entries = 0;
    int messages = 0; // calls in progress, nested
    int replays = 0;
    bool isServingWindows = false;
};

namespace
{
constexpr const char* className = "halcyra~.control";

/** Pd does not distinguish 3 from 3.: whole numbers become longs, except in messages that accept only floats. */
constexpr const char* floatMessages[] = { "roomsize" };

/** Messages that send the whole state; receivers handle it as one. */
constexpr const char* replayMessages[] = { "bang" };

template <std::size_t Size>
bool isAmong (const char* const (&names)[Size], const char* name)
{
    return std::any_of (names, names + Size, [=] (const char* each) { return std::strcmp (each, name) == 0; });
}

t_atom atomOf (const Value& value, bool asFloat = false)
{
    constexpr double exactInteger = 1 << 24; // Pd's numbers are 32-bit floats
    t_atom atom{};
    if (value.word != nullptr)
        atom_setsym (&atom, gensym (value.word));
    else if (! asFloat && std::abs (value.number) <= exactInteger && value.number == std::floor (value.number))
        atom_setlong (&atom, static_cast<t_atom_long> (value.number));
    else
        atom_setfloat (&atom, value.number);
    return atom;
}

bench::Atoms atomsOf (const Values& values, bool asFloats)
{
    bench::Atoms atoms;
    atoms.reserve (values.size());
    for (const auto& value : values)
        atoms.push_back (atomOf (value, asFloats));
    return atoms;
}

Values valuesOf (const bench::Atoms& atoms)
{
    Values values;
    values.reserve (atoms.size());
    for (const auto& atom : atoms) {
        if (atom.a_type == A_SYM)
            values.push_back ({ atom_getsym (&atom)->s_name, 0 });
        else
            values.push_back ({ nullptr, atom_getfloat (&atom) });
    }
    return values;
}

/** A word that begins with @ stays unquoted, so that it can start an attribute. */
bench::Word wordOf (const Value& value)
{
    if (value.word != nullptr)
        return { value.word, value.word[0] != '@' };
    return { bench::textOf ({ atomOf (value) }), false };
}

/** Pd reads a symbol of digits back as a number, so attributes of type symbol accept a number's text. */
void numbersToWords (bench::Atoms& atoms)
{
    for (auto& atom : atoms)
        if (atom.a_type != A_SYM)
            atom_setsym (&atom, gensym (bench::textOf ({ atom }).c_str()));
}

Host* host = nullptr;

void logTo (Listener& listener, Listener::Row kind, const bench::Event& event)
{
    const auto prefix = event.box + ": ";
    listener.row (kind, event.text.rfind (prefix, 0) == 0 ? event.text.substr (prefix.size()) : event.text);
}

void handle (const bench::Event& event)
{
    using Kind = bench::Event::Kind;
    const auto found = host->byName.find (event.box);
    if (found == host->byName.end())
        return;
    auto& listener = *found->second->listener;
    switch (event.kind) {
    case Kind::out:
        // A dictionary name means nothing in Pd; dump sends the same values.
        if (event.text != "dictionary")
            listener.message (event.outlet, event.text.c_str(), valuesOf (event.atoms));
        return;
    case Kind::post:
        return logTo (listener, Listener::Row::post, event);
    case Kind::warn:
        return logTo (listener, Listener::Row::warning, event);
    case Kind::error:
        return logTo (listener, Listener::Row::error, event);
    case Kind::bug:
        return logTo (listener, Listener::Row::bug, event);
    case Kind::notify:
        if (host->messages == 0 && host->isServingWindows)
            listener.editedByHand();
        return;
    default:
        return;
    }
}

Host& theHost()
{
    if (host == nullptr) {
        MessageLoop::start();
        host = new Host;
        host->bench.setListener (handle);
        host->bench.load (ext_main);
    }
    return *host;
}

/** Runs queued calls until none are left. JUCE's messages wait for serveWindows(), so nothing is painted here. */
void settle()
{
    while (bench::MainQueue::instance().runOne()) {
    }
}

void freeReleased()
{
    while (! host->released.empty()) {
        auto* box = host->released.back();
        host->released.pop_back();
        host->bench.free (box);
    }
}

/** Wraps every call from Pd. The calling thread becomes the main thread of Max and JUCE: with audio callbacks Pd
    alternates between two. The outermost entry settles and frees. */
class Entry
{
public:
    Entry()
    {
        ++theHost().entries;
        bench::MainQueue::thisIsTheMainThread();
        MessageLoop::useThisThread();
    }

    ~Entry()
    {
        if (host->entries == 1) {
            settle();
            freeReleased();
            if (! host->isServingWindows)
                MessageLoop::serveSoon();
        }
        --host->entries;
    }

    Entry (const Entry&) = delete;
    Entry& operator= (const Entry&) = delete;
};

/** Counts calls in progress. */
class Count
{
public:
    Count (int& countToUse, bool counts) : count (countToUse), step (counts ? 1 : 0) { count += step; }
    ~Count() { count -= step; }
    Count (const Count&) = delete;
    Count& operator= (const Count&) = delete;

private:
    int& count;
    int step;
};

std::vector<std::pair<std::string, bench::Atoms>> attributesOf (const bench::Box& box)
{
    std::vector<std::pair<std::string, bench::Atoms>> all;
    for (auto& name : bench::visibleAttributes (box))
        if (auto value = bench::attributeOf (box, name))
            all.emplace_back (std::move (name), std::move (*value));
    return all;
}

bool isSymbolic (const bench::Box& box, const std::string& attribute)
{
    const auto* found = static_cast<const t_attr*> (object_attr_get (box.object, gensym (attribute.c_str())));
    return found != nullptr && found->type == gensym ("symbol");
}

std::string unusedName()
{
    for (int number = 1;; ++number) {
        auto name = className + ("#" + std::to_string (number));
        if (host->bench.find (name) == nullptr)
            return name;
    }
}
}

/** Replaces present values by saved ones. A list saved with another number of sources or speakers is applied as far as
    it goes; any other attribute needs all its values. */
void Box::Inside::take (const NamedValues& saved, bench::Atoms& present) const
{
    auto atoms = atomsOf (saved.values, false);
    const bool fits = atoms.size() == present.size();
    const bool isTaken = fits || bench::isList (*box, saved.name);
    if (! fits)
        listener->row (isTaken ? Listener::Row::warning : Listener::Row::error,
                       "saved " + saved.name + ": " + std::to_string (present.size()) + " values were expected, " +
                           std::to_string (atoms.size()) + " were found");
    if (! isTaken)
        return;
    if (isSymbolic (*box, saved.name))
        numbersToWords (atoms);
    std::copy_n (atoms.begin(), std::min (atoms.size(), present.size()), present.begin());
}

std::unique_ptr<Box> Box::make (Listener& listener, const Values& words)
{
    const Entry entry;
    const Count message (host->messages, true);
    const auto name = unusedName();
    auto inside = std::make_unique<Inside>();
    inside->listener = &listener;
    host->byName[name] = inside.get();

    std::vector<bench::Word> typed{ { className, false } };
    for (const auto& value : words)
        typed.push_back (wordOf (value));
    inside->box = host->bench.make (name, typed);
    if (inside->box == nullptr) {
        host->byName.erase (name);
        return nullptr;
    }
    settle();
    inside->fresh = attributesOf (*inside->box);
    return std::unique_ptr<Box> (new Box (std::move (inside)));
}

Box::Box (std::unique_ptr<Inside> insideToUse) : inside (std::move (insideToUse)) {}

Box::~Box()
{
    const Entry entry;
    host->byName.erase (inside->box->name);
    host->released.push_back (inside->box);
}

int Box::numberOfOutlets() const { return bench::numberOfOutlets (*inside->box); }

void Box::setFolder (std::string path) { inside->folder = std::move (path); }

void Box::send (const char* selector, const Values& values)
{
    const Entry entry;
    if (std::strcmp (selector, "open") == 0 && ! MessageLoop::hasDisplay()) {
        if (! std::exchange (inside->lacksDisplay, true))
            inside->listener->row (Listener::Row::error, "open: there is no display to show the window on");
        return;
    }
    const bool replays = isAmong (replayMessages, selector);
    const Count message (host->messages, true);
    const Count replay (host->replays, replays);
    auto atoms = atomsOf (values, isAmong (floatMessages, selector));
    if (fileMessage (selector) != nullptr && values.size() == 1 && values.front().word != nullptr)
        atom_setsym (&atoms.front(), gensym (pathIn (inside->folder, values.front().word).c_str()));

    bench::setBaseFolder (inside->folder);
    host->bench.send (*inside->box, gensym (selector), atoms);
    if (host->replays == (replays ? 1 : 0))
        settle();
}

std::vector<NamedValues> Box::changes() const
{
    const Entry entry;
    std::vector<NamedValues> changed;
    const auto now = attributesOf (*inside->box);
    for (std::size_t i = 0; i < now.size() && i < inside->fresh.size(); ++i)
        if (bench::textOf (now[i].second) != bench::textOf (inside->fresh[i].second))
            changed.push_back ({ now[i].first, valuesOf (now[i].second) });
    return changed;
}

void Box::restore (const std::vector<NamedValues>& changes)
{
    constexpr const char* dictionary = "halcyra~.control saved";
    const Entry entry;
    const Count message (host->messages, true);
    auto state = inside->fresh;
    for (const auto& change : changes) {
        const auto found =
            std::find_if (state.begin(), state.end(), [&] (const auto& each) { return each.first == change.name; });
        if (found == state.end())
            inside->listener->row (Listener::Row::error, "saved: there is no attribute " + change.name);
        else
            inside->take (change, found->second);
    }
    for (const auto& [name, atoms] : state)
        bench::putEntry (dictionary, name, atoms);
    bench::setBaseFolder (inside->folder);
    t_atom name{};
    atom_setsym (&name, gensym (dictionary));
    host->bench.send (*inside->box, gensym ("dictionary"), { name });
    settle();
}

void serveWindows()
{
    if (host == nullptr)
        return;
    const auto before = std::exchange (host->isServingWindows, true);
    {
        const Entry entry;
        MessageLoop::dispatch();
    }
    host->isServingWindows = before;
}

void shutDown()
{
    if (host == nullptr)
        return;
    // A thread that draws with OpenGL would outlive that library. Everything else may stay.
    const auto drawsByOpenGl = [] (const auto& entry) {
        const auto value = bench::attributeOf (*entry.second->box, "useopengl");
        return value && ! value->empty() && atom_getlong (&value->front()) != 0;
    };
    if (std::none_of (host->byName.begin(), host->byName.end(), drawsByOpenGl))
        return;
    host->bench.setListener ([] (const bench::Event&) {});
    for (const auto& entry : std::exchange (host->byName, {}))
        host->bench.free (entry.second->box);
}

}
