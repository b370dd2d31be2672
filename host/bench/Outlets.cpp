#include "host/bench/Outlets.h"
#include "host/bench/Console.h"
#include "host/bench/Dictionaries.h"
#include <algorithm>
#include <mutex>

namespace bench
{

namespace
{
/** Deeper nesting is taken for a feedback loop in the patch. */
constexpr int deepestNesting = 200;

thread_local int nesting = 0;
thread_local bool overflowed = false; // outlets stay silent until the outermost message returns

std::mutex& cordsMutex()
{
    static auto& mutex = *new std::mutex;
    return mutex;
}

ClassRecord& outletClass()
{
    static auto& type = makeHostClass ("outlet", sizeof (Outlet), destroyHostObject<Outlet>);
    return type;
}

int numberOf (const Outlet& outlet)
{
    const auto* head = headOf (outlet.owner);
    const auto found = std::find (head->outlets.begin(), head->outlets.end(), &outlet.ob);
    return static_cast<int> (head->outlets.end() - found) - 1;
}

void recordMessage (const Outlet& outlet, t_symbol* selector, const std::vector<t_atom>& atoms)
{
    Event event;
    event.kind = Event::Kind::out;
    event.box = boxNameOf (outlet.owner);
    event.outlet = numberOf (outlet);
    event.text = selector->s_name;
    event.atoms = printable (atoms);
    record (std::move (event));
}

/** Receivers must read a dictionary during the call, so the bench does too. */
void recordDictionary (const Outlet& outlet, t_symbol* name)
{
    const auto* d = dictionaryOf (registeredDictionary (name));
    if (d == nullptr)
        return;
    for (auto& [key, atoms] : flattened (*d)) {
        Event event;
        event.kind = Event::Kind::dictionary;
        event.box = boxNameOf (outlet.owner);
        event.text = name->s_name;
        event.key = key;
        event.atoms = printable (atoms);
        record (std::move (event));
    }
}

void* emit (void* o, t_symbol* selector, std::vector<t_atom> atoms)
{
    const auto* head = headOf (o);
    if (head == nullptr || head->type != &outletClass() || overflowed)
        return nullptr;
    const auto& outlet = *static_cast<const Outlet*> (o);
    if (nesting >= deepestNesting) {
        overflowed = true;
        tell (Event::Kind::error, outlet.owner, "stack overflow");
        return nullptr;
    }
    ++nesting;
    recordMessage (outlet, selector, atoms);
    if (selector == gensym ("dictionary") && ! atoms.empty())
        recordDictionary (outlet, atom_getsym (&atoms.front()));
    std::vector<t_object*> receivers;
    {
        const std::lock_guard<std::mutex> lock (cordsMutex());
        receivers = outlet.receivers;
    }
    for (auto* receiver : receivers)
        if (isLive (receiver))
            deliver (receiver, selector, atoms);
    const bool good = ! overflowed;
    if (--nesting == 0)
        overflowed = false;
    return good ? o : nullptr;
}

std::vector<t_atom> copyOf (std::int16_t ac, const t_atom* av)
{
    return ac > 0 && av != nullptr ? std::vector<t_atom> (av, av + ac) : std::vector<t_atom>{};
}
}

Outlet* outletAt (const t_object* x, int number)
{
    const auto* head = headOf (x);
    if (head == nullptr || number < 0 || number >= static_cast<int> (head->outlets.size()))
        return nullptr;
    return reinterpret_cast<Outlet*> (head->outlets[head->outlets.size() - 1 - static_cast<std::size_t> (number)]);
}

void addCord (Outlet& outlet, t_object* receiver)
{
    const std::lock_guard<std::mutex> lock (cordsMutex());
    if (std::find (outlet.receivers.begin(), outlet.receivers.end(), receiver) == outlet.receivers.end())
        outlet.receivers.push_back (receiver);
}

bool removeCord (Outlet& outlet, const t_object* receiver)
{
    const std::lock_guard<std::mutex> lock (cordsMutex());
    const auto found = std::find (outlet.receivers.begin(), outlet.receivers.end(), receiver);
    if (found == outlet.receivers.end())
        return false;
    outlet.receivers.erase (found);
    return true;
}

}

using namespace bench;

void* outlet_new (void* x, const char*)
{
    // The type argument only colours the cord, so it is not stored.
    auto* head = headOf (x);
    if (head == nullptr)
        return nullptr;
    auto* made = makeHostObject<Outlet> (outletClass());
    made->owner = static_cast<t_object*> (x);
    head->outlets.push_back (&made->ob);
    return made;
}

void* outlet_bang (t_outlet* o) { return emit (o, gensym ("bang"), {}); }

void* outlet_int (t_outlet* o, t_atom_long value)
{
    t_atom atom{};
    atom_setlong (&atom, value);
    return emit (o, gensym ("int"), { atom });
}

void* outlet_float (t_outlet* o, double value)
{
    t_atom atom{};
    atom_setfloat (&atom, value);
    return emit (o, gensym ("float"), { atom });
}

void* outlet_list (t_outlet* o, t_symbol*, std::int16_t ac, t_atom* av)
{
    return emit (o, gensym ("list"), copyOf (ac, av));
}

void* outlet_anything (t_outlet* o, t_symbol* selector, std::int16_t ac, t_atom* av)
{
    return selector == nullptr ? nullptr : emit (o, selector, copyOf (ac, av));
}
