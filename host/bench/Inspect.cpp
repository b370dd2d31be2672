#include "host/bench/Inspect.h"
#include "host/bench/Attributes.h"
#include "host/bench/Console.h"
#include "host/bench/Dictionaries.h"
#include "host/bench/HostCalls.h"
#include "host/bench/Outlets.h"
#include "host/bench/Presets.h"
#include <algorithm>

namespace bench
{

namespace
{
struct TypeName
{
    short type;
    const char* name;
};

constexpr TypeName typeNames[] = {
    { A_LONG, "A_LONG" },       { A_FLOAT, "A_FLOAT" },         { A_SYM, "A_SYM" },       { A_OBJ, "A_OBJ" },
    { A_DEFLONG, "A_DEFLONG" }, { A_DEFFLOAT, "A_DEFFLOAT" },   { A_DEFSYM, "A_DEFSYM" }, { A_GIMME, "A_GIMME" },
    { A_CANT, "A_CANT" },       { A_GIMMEBACK, "A_GIMMEBACK" },
};

std::string nameOfType (short type)
{
    for (const auto& row : typeNames)
        if (row.type == type)
            return row.name;
    return std::to_string (type);
}

/** Takes ownership of atoms allocated by the host's operations. */
Atoms taken (t_clong ac, t_atom* av)
{
    Atoms atoms;
    if (av != nullptr && ac > 0)
        atoms.assign (av, av + ac);
    sysmem_freeptr (av);
    return printable (atoms);
}

Atoms valueOf (void* x, const std::string& name)
{
    t_clong ac = 0;
    t_atom* av = nullptr;
    object_attr_getvalueof (x, gensym (name.c_str()), &ac, &av);
    return taken (ac, av);
}

bool isInvisible (const Attribute& attribute)
{
    const auto* property = attribute.findProperty (gensym ("invisible"));
    return property != nullptr && ! property->value.empty() && atom_getlong (&property->value.front()) != 0;
}
}

std::optional<Atoms> attributeOf (const Box& box, const std::string& attribute)
{
    if (findAttribute (box.object, gensym (attribute.c_str())) == nullptr)
        return std::nullopt;
    return valueOf (box.object, attribute);
}

std::optional<Atoms> propertyOf (const Box& box, const std::string& attribute, const std::string& property)
{
    auto* found = findAttribute (box.object, gensym (attribute.c_str()));
    if (found == nullptr)
        return std::nullopt;
    return valueOf (found, property);
}

bool isList (const Box& box, const std::string& attribute)
{
    const auto* found = findAttribute (box.object, gensym (attribute.c_str()));
    return found != nullptr && found->countOffset != 0;
}

bool setAttribute (const Box& box, const std::string& attribute, const Atoms& atoms)
{
    auto copy = atoms;
    return object_attr_setvalueof (box.object, gensym (attribute.c_str()), static_cast<t_clong> (copy.size()),
                                   copy.empty() ? nullptr : copy.data()) == MAX_ERR_NONE;
}

namespace
{
std::vector<std::string> visibleNames (const std::vector<Attribute*>& attributes)
{
    std::vector<std::string> names;
    for (const auto* attribute : attributes)
        if (! attribute->has (ATTR_IS_JBOXATTR) && ! attribute->has (ATTR_GET_OPAQUE_USER) &&
            ! attribute->has (ATTR_GET_OPAQUE) && ! isInvisible (*attribute))
            names.emplace_back (attribute->visible.name->s_name);
    return names;
}

const ClassRecord* classNamed (const std::string& name)
{
    auto* c = class_findbyname (CLASS_BOX, gensym (name.c_str()));
    return c == nullptr ? nullptr : recordOf (c);
}
}

std::vector<std::string> visibleAttributes (const Box& box) { return visibleNames (attributesOf (box.object)); }

std::vector<std::string> visibleAttributes (const std::string& className)
{
    const auto* c = classNamed (className);
    return c == nullptr ? std::vector<std::string>() : visibleNames (c->attributes);
}

std::vector<std::string> choicesOf (const std::string& className, const std::string& attribute)
{
    const auto* c = classNamed (className);
    const auto* found = c == nullptr ? nullptr : c->findAttribute (gensym (attribute.c_str()));
    const auto* words = found == nullptr ? nullptr : found->findProperty (gensym ("enumvals"));
    std::vector<std::string> choices;
    if (words != nullptr)
        for (const auto& word : words->value)
            choices.push_back (textOf (Atoms{ word }));
    return choices;
}

std::vector<MethodRow> methodsOf (const Box& box)
{
    std::vector<MethodRow> rows;
    for (const auto& method : headOf (box.object)->type->methods) {
        MethodRow row{ method.name->s_name, {} };
        std::transform (method.types.begin(), method.types.end(), std::back_inserter (row.kinds), nameOfType);
        rows.push_back (std::move (row));
    }
    return rows;
}

std::string assistanceOf (const Box& box, e_max_assist kind, int index)
{
    const auto* assist = methodNamed (box.object, gensym ("assist"));
    char text[MAX_FILENAME_CHARS] = {};
    if (assist != nullptr)
        callAssist (assist->function, box.object, headOf (box.object)->box, kind, index, text);
    return text;
}

std::optional<Atoms> stateOf (const Box& box)
{
    const auto* method = methodNamed (box.object, gensym ("getvalueof"));
    if (method == nullptr)
        return std::nullopt;
    constexpr t_clong canary = 0x5A5A5A5A;
    t_clong ac[2] = { 0, canary };
    t_atom* av = nullptr;
    const auto error = callGetValueOf (method->function, box.object, ac, &av);
    if (ac[1] != canary)
        tell (Event::Kind::bug, box.object, "getvalueof wrote behind its count");
    auto atoms = taken (ac[0], av);
    if (error != MAX_ERR_NONE)
        return std::nullopt;
    return atoms;
}

bool setState (const Box& box, const Atoms& atoms)
{
    const auto* method = methodNamed (box.object, gensym ("setvalueof"));
    auto copy = atoms;
    return method != nullptr && callSetValueOf (method->function, box.object, copy) == MAX_ERR_NONE;
}

Atoms presetOf (const Box& box)
{
    auto atoms = writtenToPreset (box.object);
    if (! atoms.empty() && atoms.back().a_type == A_SEMI)
        atoms.pop_back();
    return atoms;
}

int numberOfOutlets (const Box& box) { return static_cast<int> (headOf (box.object)->outlets.size()); }

void putEntry (const std::string& dictionary, const std::string& key, const Atoms& atoms)
{
    auto* name = gensym (dictionary.c_str());
    auto* d = registeredDictionary (name);
    if (d == nullptr)
        d = dictobj_register (dictionary_new(), &name);
    putAtoms (d, gensym (key.c_str()), atoms);
}

std::optional<std::vector<Event>> entriesOf (const std::string& dictionary)
{
    const auto* d = dictionaryOf (registeredDictionary (gensym (dictionary.c_str())));
    if (d == nullptr)
        return std::nullopt;
    std::vector<Event> events;
    for (auto& [key, atoms] : flattened (*d)) {
        Event event;
        event.kind = Event::Kind::dictionary;
        event.text = dictionary;
        event.key = key;
        event.atoms = printable (atoms);
        events.push_back (std::move (event));
    }
    return events;
}

}
