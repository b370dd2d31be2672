#pragma once
#include "host/bench/Objects.h"
#include "host/bench/Words.h"

namespace bench
{

/** The words of a box behind its class name: arguments up to the first `@`, then one group an attribute. */
struct BoxArguments
{
    struct Group
    {
        t_symbol* attribute = nullptr;
        Atoms values;
    };

    Atoms plain;
    std::vector<Group> groups;
};

/** An unquoted word that starts with `@` begins a group. */
BoxArguments splitArguments (const std::vector<Word>& words);

/** The dictionary of a new object: the class name, every attribute's default in order of registration, over it the
    values that were typed. Owned by the caller. */
t_dictionary* makeAttributeDictionary (const ClassRecord& type, const BoxArguments& arguments);

}
