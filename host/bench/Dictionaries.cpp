#include "host/bench/Dictionaries.h"
#include <algorithm>
#include <cstring>

namespace bench
{

namespace
{
void freeValue (const t_atom& value)
{
    if (value.a_type == A_OBJ)
        object_free (value.a_w.w_obj);
}

void clearEntries (DictionaryRecord& d)
{
    for (const auto& entry : d.entries)
        freeValue (entry.value);
    d.entries.clear();
    d.attributeWords.clear();
}

void freeDictionary (t_object* x)
{
    forgetDictionaryName (x);
    clearEntries (*reinterpret_cast<DictionaryRecord*> (x));
    destroyHostObject<DictionaryRecord> (x);
}

ClassRecord& dictionaryClass()
{
    static auto& type = makeHostClass ("dictionary", sizeof (DictionaryRecord), freeDictionary);
    return type;
}

void freeAtomArray (t_object* x) { sysmem_freeptr (reinterpret_cast<t_atomarray*> (x)->av); }

ClassRecord& atomArrayClass()
{
    static auto& type = makeHostClass ("atomarray", sizeof (t_atomarray), freeAtomArray);
    return type;
}

const t_atomarray* atomArrayIn (const t_atom& value)
{
    const auto* head = headOf (atom_getobj (&value));
    return head != nullptr && head->type == &atomArrayClass() ? reinterpret_cast<const t_atomarray*> (value.a_w.w_obj)
                                                              : nullptr;
}

const DictionaryEntry* find (const t_dictionary* d, t_symbol* key)
{
    const auto* record = dictionaryOf (d);
    if (record == nullptr)
        return nullptr;
    const auto found = std::find_if (record->entries.begin(), record->entries.end(),
                                     [=] (const DictionaryEntry& entry) { return entry.key == key; });
    return found == record->entries.end() ? nullptr : &*found;
}

/** An existing key keeps its place; its old value is freed. */
t_max_err put (t_dictionary* d, t_symbol* key, const t_atom& value)
{
    auto* record = dictionaryOf (d);
    if (record == nullptr || key == nullptr) {
        freeValue (value);
        return MAX_ERR_INVALID_PTR;
    }
    for (auto& entry : record->entries)
        if (entry.key == key) {
            freeValue (std::exchange (entry.value, value));
            return MAX_ERR_NONE;
        }
    record->entries.push_back ({ key, value });
    return MAX_ERR_NONE;
}

t_max_err putObject (t_dictionary* d, t_symbol* key, t_object* value)
{
    if (value == nullptr)
        return MAX_ERR_INVALID_PTR;
    t_atom atom{};
    atom_setobj (&atom, value);
    return put (d, key, atom);
}

/** Copies atoms into memory allocated from the host. */
t_max_err copyOut (const std::vector<t_atom>& atoms, t_clong* ac, t_atom** av)
{
    *ac = 0;
    *av = nullptr;
    char alloc = 0;
    const auto error = atom_alloc_array (static_cast<t_clong> (atoms.size()), ac, av, &alloc);
    if (error == MAX_ERR_NONE)
        std::copy (atoms.begin(), atoms.end(), *av);
    return error;
}

t_max_err keysOut (const std::vector<t_symbol*>& names, t_clong* count, t_symbol*** keys)
{
    auto* block = sysmem_newptr (std::max<std::size_t> (names.size(), 1) * sizeof (void*));
    if (block == nullptr)
        return MAX_ERR_OUT_OF_MEM;
    *keys = reinterpret_cast<t_symbol**> (block);
    std::copy (names.begin(), names.end(), *keys);
    *count = static_cast<t_clong> (names.size());
    return MAX_ERR_NONE;
}

t_max_err keysOf (const t_dictionary* d, bool ordered, t_clong* count, t_symbol*** keys)
{
    const auto* record = dictionaryOf (d);
    if (record == nullptr || count == nullptr || keys == nullptr)
        return MAX_ERR_INVALID_PTR;
    std::vector<t_symbol*> names;
    for (const auto& entry : record->entries)
        names.push_back (entry.key);
    // "No order" is a deliberately unexpected one, so that no caller relies on it.
    if (! ordered)
        symbolarray_sort (static_cast<t_clong> (names.size()), names.data());
    return keysOut (names, count, keys);
}
}

DictionaryRecord* dictionaryOf (const void* d)
{
    const auto* head = headOf (d);
    return head != nullptr && head->type == &dictionaryClass()
               ? reinterpret_cast<DictionaryRecord*> (const_cast<void*> (d))
               : nullptr;
}

std::vector<t_atom> atomsIn (const t_atom& value)
{
    if (const auto* array = atomArrayIn (value))
        return { array->av, array->av + array->ac };
    return { value };
}

void putAtoms (t_dictionary* d, t_symbol* key, std::vector<t_atom> atoms)
{
    if (atoms.size() == 1)
        put (d, key, atoms.front());
    else
        dictionary_appendatoms (d, key, static_cast<t_clong> (atoms.size()), atoms.data());
}

std::vector<std::pair<std::string, std::vector<t_atom>>> flattened (const DictionaryRecord& d)
{
    std::vector<std::pair<std::string, std::vector<t_atom>>> rows;
    for (const auto& entry : d.entries) {
        const auto* inner = dictionaryOf (atom_getobj (&entry.value));
        if (inner == nullptr) {
            rows.emplace_back (entry.key->s_name, atomsIn (entry.value));
            continue;
        }
        for (auto& row : flattened (*inner))
            rows.emplace_back (entry.key->s_name + ("::" + row.first), std::move (row.second));
    }
    return rows;
}

}

using namespace bench;

t_dictionary* dictionary_new() { return &makeHostObject<DictionaryRecord> (dictionaryClass())->visible; }

t_max_err dictionary_appendlong (t_dictionary* d, t_symbol* key, t_atom_long value)
{
    t_atom atom{};
    atom_setlong (&atom, value);
    return put (d, key, atom);
}

t_max_err dictionary_appendfloat (t_dictionary* d, t_symbol* key, double value)
{
    t_atom atom{};
    atom_setfloat (&atom, value);
    return put (d, key, atom);
}

t_max_err dictionary_appendsym (t_dictionary* d, t_symbol* key, t_symbol* value)
{
    t_atom atom{};
    atom_setsym (&atom, value);
    return put (d, key, atom);
}

t_max_err dictionary_appendatoms (t_dictionary* d, t_symbol* key, t_clong argc, t_atom* argv)
{
    if (dictionaryOf (d) == nullptr)
        return MAX_ERR_INVALID_PTR;
    return putObject (d, key, &atomarray_new (argc, argv)->ob);
}

t_max_err dictionary_appendatomarray (t_dictionary* d, t_symbol* key, t_object* value)
{
    return putObject (d, key, value);
}

t_max_err dictionary_appenddictionary (t_dictionary* d, t_symbol* key, t_object* value)
{
    return putObject (d, key, value);
}

t_max_err dictionary_getatom (const t_dictionary* d, t_symbol* key, t_atom* value)
{
    const auto* entry = find (d, key);
    if (entry == nullptr || value == nullptr)
        return MAX_ERR_GENERIC;
    *value = entry->value;
    return MAX_ERR_NONE;
}

t_max_err dictionary_getatoms (const t_dictionary* d, t_symbol* key, t_clong* argc, t_atom** argv)
{
    const auto* entry = find (d, key);
    if (entry == nullptr || argc == nullptr || argv == nullptr)
        return MAX_ERR_GENERIC;
    const auto* array = atomArrayIn (entry->value);
    *argc = array == nullptr ? 1 : array->ac;
    *argv = array == nullptr ? const_cast<t_atom*> (&entry->value) : array->av;
    return MAX_ERR_NONE;
}

t_max_err dictionary_copyatoms (const t_dictionary* d, t_symbol* key, t_clong* argc, t_atom** argv)
{
    const auto* entry = find (d, key);
    if (entry == nullptr || argc == nullptr || argv == nullptr)
        return MAX_ERR_GENERIC;
    return copyOut (atomsIn (entry->value), argc, argv);
}

t_max_err dictionary_getkeys (const t_dictionary* d, t_clong* count, t_symbol*** keys)
{
    return keysOf (d, false, count, keys);
}

t_max_err dictionary_getkeys_ordered (const t_dictionary* d, t_clong* count, t_symbol*** keys)
{
    return keysOf (d, true, count, keys);
}

void dictionary_freekeys (t_dictionary*, t_clong, t_symbol** keys) { sysmem_freeptr (keys); }
t_clong dictionary_hasentry (const t_dictionary* d, t_symbol* key) { return find (d, key) == nullptr ? 0 : 1; }

t_max_err dictionary_clear (t_dictionary* d)
{
    auto* record = dictionaryOf (d);
    if (record == nullptr)
        return MAX_ERR_INVALID_PTR;
    clearEntries (*record);
    return MAX_ERR_NONE;
}

t_atomarray* atomarray_new (t_clong ac, t_atom* av)
{
    auto* array = reinterpret_cast<t_atomarray*> (allocateObject (atomArrayClass()));
    const std::vector<t_atom> atoms (av, av == nullptr ? av : av + std::max (ac, 0));
    copyOut (atoms, &array->ac, &array->av);
    return array;
}

t_max_err atomarray_getatoms (t_atomarray* x, t_clong* ac, t_atom** av)
{
    if (x == nullptr || ac == nullptr || av == nullptr)
        return MAX_ERR_INVALID_PTR;
    *ac = x->ac;
    *av = x->av;
    return MAX_ERR_NONE;
}

t_max_err atomarray_copyatoms (t_atomarray* x, t_clong* ac, t_atom** av)
{
    if (x == nullptr || ac == nullptr || av == nullptr)
        return MAX_ERR_INVALID_PTR;
    return copyOut ({ x->av, x->av + x->ac }, ac, av);
}

t_dictionary* object_dictionaryarg (t_clong ac, t_atom* av)
{
    for (t_clong i = 0; av != nullptr && i < ac; ++i)
        if (auto* found = dictionaryOf (atom_getobj (av + i)))
            return &found->visible;
    return nullptr;
}
