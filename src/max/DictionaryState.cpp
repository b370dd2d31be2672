#include "max/DictionaryState.h"

#include "max/AttributeList.h"
#include "max/AttributeServices.h"
#include "max/AttributeValue.h"
#include "max/DictionaryKeys.h"
#include "max/Guarded.h"
#include "max/MaxAttribute.h"
#include "max/MaxErrorText.h"
#include "max/OrvanemaxSymbols.h"
#include "max/Recall.h"

namespace orvanemax
{
namespace
{

t_dictionary* dictionaryOfBox (void* object, t_clong argc, t_atom* argv)
{
    auto* dictionary = object_dictionaryarg (argc, argv);
    if (dictionary == nullptr)
        tellBug (object, "couldnt process dictionnary");
    return dictionary;
}

bool processEntry (void* object, t_dictionary* dictionary, const char* name)
{
    auto* key = gensym (name);
    t_atom atom{};
    if (! dictionary_hasentry (dictionary, key)) {
        tellError (object, std::string ("dictionary doesnt have entry for ") + name);
        return false;
    }
    if (dictionary_getatom (dictionary, key, &atom) != MAX_ERR_NONE) {
        tellError (object, std::string ("error getting atom value from dict for entry ") + name);
        return false;
    }
    return object_attr_setvalueof (object, key, 1, &atom) == MAX_ERR_NONE;
}

void sendDictionary (void* object, OwnedDictionary& dictionary)
{
    auto* outlet = dumpOutlet (object);
    if (outlet == nullptr)
        return;
    t_symbol* name = nullptr;
    if (! dictionary.registerUnderUniqueName (name))
        return tellError (object, "couldnt outlet dictionary");
    t_atom atom{};
    atom_setsym (&atom, name);
    outlet_anything (outlet, gensym ("dictionary"), 1, &atom);
    dictionary_clear (dictionary.get()); // receivers have copied what they need
}

void setFromArray (Recall& recall, t_symbol* key, void* array)
{
    t_clong count = 0;
    t_atom* atoms = nullptr;
    if (atomarray_copyatoms (static_cast<t_atomarray*> (array), &count, &atoms) == MAX_ERR_NONE)
        recall.set (key, count, atoms);
    sysmem_freeptr (atoms);
}

void setFromEntry (void* object, Recall& recall, const t_dictionary* dictionary, t_symbol* key)
{
    t_atom atom{};
    if (dictionary_getatom (dictionary, key, &atom) != MAX_ERR_NONE ||
        (atom_gettype (&atom) == A_OBJ && ! atomisatomarray (&atom)))
        return tellError (object, std::string ("entry ") + key->s_name + " is not atom ? ");
    if (object_attr_usercanset (object, key) == 0)
        return; // the dictionary may hold more than attributes, and documentation is read-only
    if (atom_gettype (&atom) == A_OBJ)
        setFromArray (recall, key, atom_getobj (&atom));
    else
        recall.set (key, 1, &atom);
}

bool readDictionary (void* object, t_dictionary* dictionary)
{
    const DictionaryKeys keys (dictionary, DictionaryKeys::Order::none);
    if (keys.error() != MAX_ERR_NONE) {
        tellError (object, std::string ("couldnt get dict key : ") + errorText (keys.error()));
        return false;
    }
    Recall recall (object, { keys.begin(), keys.end() });
    for (auto* key : keys)
        if (! objectIsGone())
            setFromEntry (object, recall, dictionary, key);
    return true;
}

}

bool processDictionary (void* object, t_clong argc, t_atom* argv, bool check)
{
    auto* dictionary = dictionaryOfBox (object, argc, argv);
    if (dictionary == nullptr)
        return false;
    if (check)
        attr_dictionary_check (object, dictionary);
    attr_dictionary_process (object, dictionary);
    return true;
}

bool processEntries (void* object, t_clong argc, t_atom* argv, std::initializer_list<const char*> names)
{
    auto* dictionary = dictionaryOfBox (object, argc, argv);
    if (dictionary == nullptr)
        return false;
    bool good = true;
    for (const auto* name : names)
        good = processEntry (object, dictionary, name) && good;
    if (! good)
        tellError (object, "error parsing dictionary");
    return good;
}

void appendAttributeToDictionary (void* object, t_symbol* name, t_dictionary* target)
{
    if (! MaxAttribute (object, name).exists())
        return tellError (object, std::string ("no attribute ") + name->s_name);
    const AttributeValue value (object, name);
    if (value.error() != MAX_ERR_NONE)
        return tellBug (object, std::string ("AppendAttributeToDictionary : ") + errorText (value.error()) +
                                    " in object_attr_getvalueof (" + name->s_name + ")");
    if (value.size() > 1)
        dictionary_appendatoms (target, name, value.size(), value.data());
    if (value.size() != 1)
        return;
    const auto* atom = value.data();
    switch (atom_gettype (atom)) {
    case A_LONG:
        dictionary_appendlong (target, name, atom_getlong (atom));
        break;
    case A_FLOAT:
        dictionary_appendfloat (target, name, atom_getfloat (atom));
        break;
    case A_SYM:
        dictionary_appendsym (target, name, atom_getsym (atom));
        break;
    default:
        tellWarning (object, "unknown atom type in AppendAttributeToDictionary");
    }
}

}

using namespace orvanemax;

void orvanemax_dumpdict (void* x, t_symbol*, t_clong argc, t_atom* argv)
{
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        OwnedDictionary dictionary;
        for (const auto& atom : atoms) {
            if (atom_gettype (&atom) != A_SYM)
                return invalidMessage (x, "invalid message : dumpdict", atoms);
            appendAttributeToDictionary (x, atom_getsym (&atom), dictionary.get());
        }
        if (atoms.empty())
            for (auto* name : visibleAttributes (x))
                appendAttributeToDictionary (x, name, dictionary.get());
        sendDictionary (x, dictionary);
    });
}

void orvanemax_dictionary (void* x, t_symbol* name)
{
    guarded (x, [=] {
        auto* dictionary = dictobj_findregistered_retain (name);
        if (dictionary == nullptr)
            return tellError (x, std::string ("unable to reference dictionary named ") + name->s_name);
        if (! readDictionary (x, dictionary))
            tellError (x, std::string ("error parsing dictionary named ") + name->s_name);
        dictobj_release (dictionary);
    });
}
