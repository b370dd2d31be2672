#include "host/bench/AttributeArguments.h"
#include "host/bench/Attributes.h"
#include "host/bench/Console.h"
#include "host/bench/Dictionaries.h"

namespace bench
{

namespace
{
bool beginsGroup (const std::string& text) { return text.size() > 1 && text.front() == '@'; }

bool beginsGroup (const t_atom& atom) { return atom.a_type == A_SYM && beginsGroup (atom.a_w.w_sym->s_name); }
}

BoxArguments splitArguments (const std::vector<Word>& words)
{
    BoxArguments arguments;
    for (const auto& word : words) {
        if (! word.quoted && beginsGroup (word.text))
            arguments.groups.push_back ({ gensym (word.text.c_str() + 1), {} });
        else if (arguments.groups.empty())
            arguments.plain.push_back (atomOf (word));
        else
            arguments.groups.back().values.push_back (atomOf (word));
    }
    return arguments;
}

t_dictionary* makeAttributeDictionary (const ClassRecord& type, const BoxArguments& arguments)
{
    auto* d = dictionary_new();
    dictionary_appendsym (d, gensym ("maxclass"), type.visible.c_sym);
    for (const auto* attribute : type.attributes) {
        const auto* preset = attribute->findProperty (gensym ("default"));
        if (preset != nullptr && ! preset->value.empty())
            putAtoms (d, attribute->visible.name, preset->value);
    }
    for (const auto& group : arguments.groups) {
        // A name without values keeps the default.
        if (! group.values.empty() || dictionary_hasentry (d, group.attribute) == 0)
            putAtoms (d, group.attribute, group.values);
        dictionaryOf (d)->attributeWords.insert (group.attribute);
    }
    return d;
}

}

using namespace bench;

void attr_dictionary_process (void* x, t_dictionary* d)
{
    const auto* record = dictionaryOf (d);
    if (record == nullptr)
        return;
    // A copy: setters may change the dictionary during the loop.
    const auto entries = record->entries;
    for (const auto& entry : entries) {
        const auto* attribute = findAttribute (x, entry.key);
        if (attribute == nullptr || attribute->has (ATTR_SET_OPAQUE))
            continue;
        auto atoms = atomsIn (entry.value);
        object_attr_setvalueof (x, entry.key, static_cast<t_clong> (atoms.size()), atoms.data());
    }
}

void attr_dictionary_check (void* x, t_dictionary* d)
{
    const auto* record = dictionaryOf (d);
    if (record == nullptr)
        return;
    for (const auto& entry : record->entries)
        if (record->attributeWords.count (entry.key) != 0 && findAttribute (x, entry.key) == nullptr)
            tell (Event::Kind::error, x,
                  std::string ("\"") + entry.key->s_name + "\" is not a valid attribute argument");
}

t_clong attr_args_offset (std::int16_t ac, t_atom* av)
{
    for (std::int16_t i = 0; av != nullptr && i < ac; ++i)
        if (beginsGroup (av[i]))
            return i;
    return ac;
}

void attr_args_process (void* x, std::int16_t ac, t_atom* av)
{
    auto at = attr_args_offset (ac, av);
    while (at < ac) {
        auto* name = gensym (av[at].a_w.w_sym->s_name + 1);
        const auto first = at + 1;
        for (at = first; at < ac && ! beginsGroup (av[at]);)
            ++at;
        if (findAttribute (x, name) != nullptr)
            object_attr_setvalueof (x, name, at - first, av + first);
        else
            tell (Event::Kind::error, x, std::string ("\"") + name->s_name + "\" is not a valid attribute argument");
    }
}
