#include "max/PattrState.h"

#include "max/AttributeList.h"
#include "max/AttributeValue.h"
#include "max/Guarded.h"
#include "max/MainThread.h"
#include "max/MaxErrorText.h"
#include "max/OrvanemaxSymbols.h"
#include "max/Recall.h"

#include <algorithm>
#include <vector>

namespace orvanemax
{
namespace
{

/** The attributes' values, concatenated. */
std::vector<t_atom> collect (void* object, const std::vector<VisibleValue>& attributes)
{
    std::vector<t_atom> values;
    for (const auto& [name, value] : attributes)
        for (const auto& atom : value.atoms()) {
            if (isKnownType (atom))
                values.push_back (atom);
            else
                tellError (object, "orvanemax_getvalueof : unknown atom type");
        }
    return values;
}

/** Returns the values in new memory, or in the caller's, whose capacity is unknown. */
bool handOver (void* object, const std::vector<t_atom>& values, t_clong* ac, t_atom** av)
{
    const auto bytes = values.size() * sizeof (t_atom);
    if (*ac > 0 && *av != nullptr)
        tellWarning (object, "orvanemax_getvalueof : memory passed in");
    else
        *av = reinterpret_cast<t_atom*> (sysmem_newptr (std::max<t_ptr_size> (bytes, sizeof (t_atom))));
    if (*av == nullptr)
        return false;
    sysmem_copyptr (values.data(), *av, bytes);
    *ac = static_cast<t_clong> (values.size());
    return true;
}

void setOne (void* object, Recall& recall, t_symbol* name, const t_atom* first, t_clong count)
{
    std::vector<t_atom> values (first, first + count);
    for (const auto& atom : values)
        if (! isKnownType (atom))
            tellWarning (object, "unknown atom type in orvanemax_setvalueof");
    const auto error = recall.set (name, count, values.data());
    if (error != MAX_ERR_NONE && ! objectIsGone())
        tellError (object, std::string (errorText (error)) + " in object_attr_setvalueof " + name->s_name);
}

/** Reads an attribute's size only when its turn comes: setting those before may change it. */
void setAll (void* object, const AttributeNames& names, const t_atom* values, t_clong count)
{
    Recall recall (object, names);
    t_clong read = 0;
    for (auto* name : names) {
        if (objectIsGone())
            return;
        const auto needed = GetNumberOfAtomsNeededToStoreAttribute (object, name);
        if (needed > count - read)
            return tellError (object, "error reading atoms in orvanemax_setvalueof");
        if (needed > 0)
            setOne (object, recall, name, values + read, needed);
        read += needed;
    }
}

}
}

using namespace orvanemax;

t_max_err orvanemax_getvalueof (void* x, t_clong* ac, t_atom** av)
{
    t_max_err result = MAX_ERR_GENERIC;
    guarded (x, [&] {
        if (ac == nullptr || av == nullptr)
            return tellBug (x, "orvanemax_getvalueof : there is a problem");
        const auto attributes = visibleValues (x);
        const auto expected = numberOfAtoms (attributes);
        const auto values = collect (x, attributes);
        if (static_cast<t_clong> (values.size()) != expected)
            tellError (x, std::to_string (expected) + " atoms allocated but " + std::to_string (values.size()) +
                              " atoms stored by the pattrstorage");
        if (handOver (x, values, ac, av))
            result = MAX_ERR_NONE;
    });
    return result;
}

t_max_err orvanemax_setvalueof (void* x, t_clong ac, t_atom* av)
{
    guarded (x, [=] {
        if (ac <= 0 || av == nullptr)
            return;
        const auto names = visibleAttributes (x);
        const auto expected = numberOfAtoms (x, names);
        if (ac != expected)
            return tellError (x, "setvalueof error (received " + std::to_string (ac) + " atoms. " +
                                     std::to_string (expected) + " atoms were expected)");
        setAll (x, names, av, ac);
    });
    return MAX_ERR_NONE;
}

void orvanemax_preset (void* x)
{
    guarded (x, [=] {
        auto* binbuf = gensym ("_preset")->s_thing;
        if (binbuf == nullptr)
            return;
        const auto expected = static_cast<std::size_t> (numberOfAtoms (visibleValues (x)));
        t_clong count = 0;
        t_atom* values = nullptr;
        const auto error = orvanemax_getvalueof (x, &count, &values);
        if (error != MAX_ERR_NONE || static_cast<std::size_t> (count) != expected)
            tellError (x, "error in orvanemax_preset");
        else {
            std::vector<t_atom> message (3);
            atom_setobj (&message[0], x);
            atom_setsym (&message[1], object_classname (x));
            atom_setsym (&message[2], symbols().recallpreset);
            message.insert (message.end(), values, values + count);
            binbuf_insert (binbuf, nullptr, deferrable (static_cast<t_clong> (message.size())), message.data());
        }
        sysmem_freeptr (values);
    });
}

void orvanemax_recallpreset (void* x, t_symbol*, t_clong argc, t_atom* argv) { orvanemax_setvalueof (x, argc, argv); }
