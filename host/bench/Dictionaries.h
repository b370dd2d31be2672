#pragma once
#include "host/bench/Objects.h"
#include <list>
#include <unordered_set>

namespace bench
{

struct DictionaryEntry
{
    t_symbol* key = nullptr;
    t_atom value{}; // several atoms are an A_OBJ atom with an atom array, owned
};

struct DictionaryRecord
{
    t_dictionary visible{};
    std::list<DictionaryEntry> entries;           // in order of insertion
    std::unordered_set<t_symbol*> attributeWords; // keys typed after an `@`
};

/** Null if d is not a dictionary. */
DictionaryRecord* dictionaryOf (const void* d);

/** The atoms of a value: a single one, or its array's. */
std::vector<t_atom> atomsIn (const t_atom& value);

/** Stores a single atom as is, several as an array. */
void putAtoms (t_dictionary* d, t_symbol* key, std::vector<t_atom> atoms);

/** The dictionary registered under a name, or null; borrowed. */
t_dictionary* registeredDictionary (t_symbol* name);
void forgetDictionaryName (const void* d);

/** Key and value of every entry; inner dictionaries under "key::inner". */
std::vector<std::pair<std::string, std::vector<t_atom>>> flattened (const DictionaryRecord& d);

}
