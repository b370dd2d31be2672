#include "host/bench/Attributes.h"
#include "host/bench/Console.h"
#include "host/bench/HostCalls.h"
#include "host/bench/MainQueue.h"
#include "host/bench/Outlets.h"
#include <cstring>

namespace bench
{

namespace
{
using Atoms = std::vector<t_atom>;

void complain (const t_object* x, const std::string& text)
{
    tell (Event::Kind::error, x, boxNameOf (x) + ": " + text);
}

const Method* reachable (const t_object* x, t_symbol* name)
{
    const auto* found = methodNamed (x, name);
    return found == nullptr || found->isForHostOnly() ? nullptr : found;
}

/** A number falls back to the method for the other kind of number, and a one-element list to that element's. */
const Method* methodFor (const t_object* x, t_symbol* selector, const Atoms& atoms)
{
    if (const auto* found = reachable (x, selector))
        return found;
    auto* asInt = gensym ("int");
    auto* asFloat = gensym ("float");
    if (selector == asInt || selector == asFloat)
        return reachable (x, selector == asInt ? asFloat : asInt);
    if (selector == gensym ("list") && atoms.size() == 1 && atoms.front().a_type == A_LONG)
        return methodFor (x, asInt, {});
    if (selector == gensym ("list") && atoms.size() == 1 && atoms.front().a_type == A_FLOAT)
        return methodFor (x, asFloat, {});
    return nullptr;
}

void setLater (t_object* x, t_symbol* name, std::int16_t argc, t_atom* argv)
{
    object_attr_setvalueof (x, name, argc, argv);
}

bool setByMessage (t_object* x, t_symbol* selector, Atoms& atoms)
{
    if (object_attr_usercanset (x, selector) == 0)
        return false;
    if (waitsForMainThread (*findAttribute (x, selector)))
        MainQueue::instance().push (false, x, max_method (setLater), selector, atoms);
    else
        object_attr_setvalueof (x, selector, static_cast<t_clong> (atoms.size()),
                                atoms.empty() ? nullptr : atoms.data());
    return true;
}

/** "getgain" sends "gain" and the value from the outlet stored under dumpout, if there is one. */
bool answerGet (t_object* x, const t_symbol* selector)
{
    if (std::strncmp (selector->s_name, "get", 3) != 0)
        return false;
    auto* name = gensym (selector->s_name + 3);
    if (object_attr_usercanget (x, name) == 0)
        return false;
    t_object* dumpout = nullptr;
    if (object_obex_lookup (x, gensym ("dumpout"), &dumpout) != MAX_ERR_NONE)
        return true;
    t_clong ac = 0;
    t_atom* av = nullptr;
    if (object_attr_getvalueof (x, name, &ac, &av) == MAX_ERR_NONE)
        outlet_anything (dumpout, name, static_cast<std::int16_t> (ac), av);
    sysmem_freeptr (av);
    return true;
}
}

void deliver (t_object* x, t_symbol* selector, std::vector<t_atom> atoms)
{
    if (const auto* method = methodFor (x, selector, atoms)) {
        const std::string fault = callWithAtoms (*method, x, selector, atoms);
        if (! fault.empty())
            complain (x, fault + " arguments for message \"" + selector->s_name + "\"");
        return;
    }
    if (setByMessage (x, selector, atoms) || answerGet (x, selector))
        return;
    if (const auto* anything = reachable (x, gensym ("anything")))
        callWithAtoms (*anything, x, selector, atoms);
    else
        complain (x, std::string ("doesn't understand \"") + selector->s_name + "\"");
}

}
