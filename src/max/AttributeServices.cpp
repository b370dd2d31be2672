#include "max/AttributeServices.h"

#include "max/AttributeList.h"
#include "max/AttributeValue.h"
#include "max/Guarded.h"
#include "max/MainThread.h"
#include "max/MaxAttribute.h"
#include "max/MaxErrorText.h"
#include "max/OrvanemaxSymbols.h"

#include <vector>

namespace orvanemax
{
namespace
{

/** "DumpAttribute : MAX_ERR_GENERIC in object_attr_getvalueof (gain)" */
std::string failureOf (const char* operation, t_max_err error, t_symbol* name)
{
    return std::string (operation) + " : " + errorText (error) + " in object_attr_getvalueof (" + name->s_name + ")";
}

bool hasAttribute (void* object, t_symbol* name)
{
    if (MaxAttribute (object, name).exists())
        return true;
    tellError (object, std::string ("no attribute ") + name->s_name);
    return false;
}

void appendAttribute (void* object, t_symbol* name, std::vector<t_atom>& list)
{
    const AttributeValue value (object, name);
    if (value.error() != MAX_ERR_NONE)
        return tellBug (object, failureOf ("DumpAllAttributes", value.error(), name));
    t_atom word{};
    atom_setsym (&word, name);
    list.push_back (word);
    for (const auto& atom : value.atoms()) {
        if (isKnownType (atom))
            list.push_back (atom);
        else
            tellWarning (object, "unknown atom type in orvanemax_dumpattributes");
    }
    atom_setsym (&word, symbols().comma);
    list.push_back (word);
}

void dumpAll (void* object, t_outlet* outlet)
{
    const auto names = visibleAttributes (object);
    const auto expected = static_cast<std::size_t> (numberOfAtoms (object, names)) + 2 * names.size();
    std::vector<t_atom> list;
    list.reserve (expected);
    for (auto* name : names)
        appendAttribute (object, name, list);
    if (list.size() != expected)
        tellError (object, std::to_string (expected) + " atoms allocated but " + std::to_string (list.size()) +
                               " atoms dumped");
    outlet_list (outlet, nullptr, deferrable (static_cast<t_clong> (list.size())), list.data());
}

void dumpOne (void* object, t_outlet* outlet, t_symbol* name)
{
    if (! hasAttribute (object, name))
        return;
    const AttributeValue value (object, name);
    if (value.error() != MAX_ERR_NONE)
        return tellBug (object, failureOf ("DumpAttribute", value.error(), name));
    outlet_anything (outlet, name, deferrable (value.size()), value.data());
}

void postOne (void* object, t_symbol* name)
{
    const AttributeValue value (object, name);
    if (value.error() != MAX_ERR_NONE)
        return tellError (object, failureOf ("PostValueOfAttribute", value.error(), name));
    tellPost (object, std::string (name->s_name) + " : " + value.atoms().text());
}

void postAll (void* object)
{
    const auto names = visibleAttributes (object);
    tellPost (object, "found " + std::to_string (names.size()) + " attributes");
    for (auto* name : names)
        postOne (object, name);
}

}

t_outlet* dumpOutlet (void* object)
{
    t_object* outlet = nullptr;
    object_obex_lookup (object, dumpout(), &outlet);
    if (outlet == nullptr)
        tellError (object, "no dump outlet");
    return outlet;
}

void resetAttributeToDefault (void* object, t_symbol* name, bool force, bool warn)
{
    auto* attribute = object_attr_get (object, name);
    if (attribute == nullptr)
        return tellError (object, std::string ("no attribute ") + name->s_name);
    if (! force && ! MaxAttribute (static_cast<t_object*> (attribute)).CanBeReset())
        return;
    const AttributeValue value (attribute, symbols().default_);
    if (value.atoms().empty()) {
        if (warn)
            tellWarning (object, std::string ("attribute ") + name->s_name + " doesnt have a default value");
    } else if (value.error() != MAX_ERR_NONE) {
        tellBug (object, std::string ("ResetAttributeToDefault : ") + errorText (value.error()) +
                             " in object_attr_getvalueof default " + name->s_name);
    } else {
        object_attr_setvalueof (object, name, value.size(), value.data());
    }
}

}

using namespace orvanemax;

void orvanemax_dump (void* x, t_symbol*, t_clong argc, t_atom* argv)
{
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        auto* outlet = dumpOutlet (x);
        if (outlet == nullptr)
            return;
        if (atoms.empty())
            return dumpAll (x, outlet);
        if (! atoms.fit ("s"))
            return invalidMessage (x, "invalid message : dump", atoms);
        dumpOne (x, outlet, atoms.symbol (0));
    });
}

void orvanemax_postattributes (void* x, t_symbol*, t_clong argc, t_atom* argv)
{
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (atoms.empty())
            return postAll (x);
        if (! atoms.fitExactly ("s"))
            return invalidMessage (x, "invalid message : postattributes", atoms);
        if (hasAttribute (x, atoms.symbol (0)))
            postOne (x, atoms.symbol (0));
    });
}

void orvanemax_reset (void* x, t_symbol*, t_clong argc, t_atom* argv)
{
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (atoms.empty()) {
            for (auto* name : visibleAttributes (x))
                if (! objectIsGone())
                    resetAttributeToDefault (x, name, false, false);
            return;
        }
        if (! atoms.fitExactly ("s"))
            return invalidMessage (x, "invalid message : reset", atoms);
        resetAttributeToDefault (x, atoms.symbol (0), false, true);
    });
}

void orvanemax_version (void* x)
{
    guarded (x, [=] {
        const MaxAttribute attribute (x, gensym ("externalversion"));
        if (! attribute.exists())
            return tellError (x, "Couldnt get external version");
        const auto label = attribute.label();
        tellPost (x, label.empty() ? "unknown version" : "Version " + label.str());
    });
}
