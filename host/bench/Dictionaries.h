#pragma once
#include "host/bench/Objects.h"
#include <list>
#include <unordered_set>

namespace bench
{

struct DictionaryEntry
{
    t_symbol* key = nullptr;
    t_atom value{}; // of several atoms an A_OBJ atom with an atom array, owned
};

struct DictionaryRecord
{
    t_dictionary visible{};
    std::list<DictionaryEntry> entries;           // in order of insertion
    std::unordered_set<t_symbol*> attributeWords; // keys that somebody typed behind an `@`
};

/** Null for what is no dictionary. */
DictionaryRecord* dictionaryOf (const void* d);

/** The atoms of a value: one, or those of its array. */
std::vector<t_atom> atomsIn (const t_atom& value);

/** A value of one atom as it is, of several as an array. */
void putAtoms (t_dictionary* d, t_symbol* key, std::vector<t_atom> atoms);

/** The dictionary that bears a name, or null; borrowed. */
t_dictionary* registeredDictionary (t_symbol* name);
void forgetDictionaryName (const void* d);

/** Key and value of every entry, those of inner dictionaries under "key::inner". */
std::vector<std::pair<std::string, std::vector<t_atom>>> flattened (const DictionaryRecord& d);

}
