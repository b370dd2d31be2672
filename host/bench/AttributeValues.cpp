#include "host/bench/Attributes.h"
#include "host/bench/Console.h"
#include "host/bench/HostCalls.h"
#include "host/bench/MainQueue.h"
#include <algorithm>
#include <atomic>

namespace bench
{

namespace
{
std::atomic<bool> missingPropertyIsError{ false };
std::atomic<bool> deferFlagsAreHonoured{ false };

constexpr t_clong canary = 0x5A5A5A5A;

t_max_err copyOut (const std::vector<t_atom>& atoms, t_clong* ac, t_atom** av)
{
    char alloc = 0;
    const auto error = atom_alloc_array (static_cast<t_clong> (atoms.size()), ac, av, &alloc);
    if (error != MAX_ERR_NONE)
        return error;
    const auto room = static_cast<std::size_t> (std::max (*ac, 0));
    std::copy_n (atoms.begin(), std::min (atoms.size(), room), *av);
    *ac = static_cast<t_clong> (std::min (atoms.size(), room));
    return MAX_ERR_NONE;
}

/** Calls a getter of the class, and reports one that writes a 64-bit count. */
t_max_err askGetter (const Attribute& attribute, void* x, t_clong* ac, t_atom** av)
{
    t_clong guarded[2] = { *ac, canary };
    const auto error = callGetter (attribute.visible.get, x, const_cast<Attribute*> (&attribute), guarded, av);
    if (guarded[1] != canary)
        tell (Event::Kind::bug, x,
              std::string ("getter of ") + attribute.visible.name->s_name + " wrote behind its count");
    *ac = guarded[0];
    return error;
}
}

void setMissingPropertyIsError (bool isError) { missingPropertyIsError = isError; }
void setDeferFlagsAreHonoured (bool areHonoured) { deferFlagsAreHonoured = areHonoured; }

bool waitsForMainThread (const Attribute& attribute)
{
    const bool isFlagged = attribute.has (ATTR_SET_DEFER) || attribute.has (ATTR_SET_DEFER_LOW);
    return isFlagged && deferFlagsAreHonoured && ! MainQueue::onMainThread();
}

}

using namespace bench;

void* object_attr_get (void* x, t_symbol* name) { return findAttribute (x, name); }

t_max_err object_attr_getnames (void* x, t_clong* count, t_symbol*** names)
{
    if (headOf (x) == nullptr || count == nullptr || names == nullptr)
        return MAX_ERR_INVALID_PTR;
    const auto all = attributesOf (x);
    auto* block = sysmem_newptr (std::max<std::size_t> (all.size(), 1) * sizeof (void*));
    if (block == nullptr)
        return MAX_ERR_OUT_OF_MEM;
    *names = reinterpret_cast<t_symbol**> (block);
    *count = static_cast<t_clong> (all.size());
    std::transform (all.begin(), all.end(), *names, [] (const Attribute* a) { return a->visible.name; });
    return MAX_ERR_NONE;
}

t_max_err object_attr_getvalueof (void* x, t_symbol* name, t_clong* ac, t_atom** av)
{
    if (headOf (x) == nullptr || ac == nullptr || av == nullptr)
        return MAX_ERR_INVALID_PTR;
    const auto* attribute = findAttribute (x, name);
    if (attribute == nullptr || attribute->has (ATTR_GET_OPAQUE)) {
        *ac = 0;
        const bool isQuiet = attributeIn (x) != nullptr && ! missingPropertyIsError;
        return isQuiet ? MAX_ERR_NONE : MAX_ERR_GENERIC;
    }
    const auto error = attribute->visible.get != nullptr ? askGetter (*attribute, x, ac, av)
                                                         : copyOut (readField (*attribute, x), ac, av);
    if (error == MAX_ERR_NONE && *av != nullptr)
        applyFilters (attribute->filtersOnGet, *attribute, *ac, *av);
    return error;
}

t_max_err object_attr_setvalueof (void* x, t_symbol* name, t_clong ac, t_atom* av)
{
    auto* attribute = headOf (x) == nullptr ? nullptr : findAttribute (x, name);
    if (attribute == nullptr || attribute->has (ATTR_SET_OPAQUE))
        return MAX_ERR_GENERIC;
    std::vector<t_atom> atoms;
    if (ac > 0 && av != nullptr)
        atoms.assign (av, av + ac);
    if (attributeIn (x) != nullptr) {
        attribute->value = std::move (atoms);
        return MAX_ERR_NONE;
    }
    applyFilters (attribute->filtersOnSet, *attribute, static_cast<t_clong> (atoms.size()), atoms.data());
    auto error = static_cast<t_max_err> (MAX_ERR_NONE);
    if (attribute->visible.set != nullptr)
        error = callSetter (attribute->visible.set, x, attribute, atoms);
    else
        writeField (*attribute, x, atoms);
    object_attr_touch (static_cast<t_object*> (x), name);
    return error;
}

t_max_err object_attr_touch (t_object* x, t_symbol* name)
{
    auto* attribute = headOf (x) == nullptr ? nullptr : findAttribute (x, name);
    return attribute == nullptr ? MAX_ERR_GENERIC : object_notify (x, gensym ("attr_modified"), attribute);
}

t_clong object_attr_usercanget (void* x, t_symbol* name)
{
    const auto* attribute = findAttribute (x, name);
    return attribute != nullptr && ! attribute->has (ATTR_GET_OPAQUE_USER) && ! attribute->has (ATTR_GET_OPAQUE);
}

t_clong object_attr_usercanset (void* x, t_symbol* name)
{
    const auto* attribute = findAttribute (x, name);
    return attribute != nullptr && ! attribute->has (ATTR_SET_OPAQUE_USER) && ! attribute->has (ATTR_SET_OPAQUE);
}
