#pragma once
#include "host/bench/Objects.h"
#include "host/bench/Words.h"

namespace bench
{

/** A box's words after its class name: arguments up to the first `@`, then one group per attribute. */
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

/** The dictionary of a new object: the class name, all attribute defaults in order of registration, overridden by the
    values typed. Owned by the caller. */
t_dictionary* makeAttributeDictionary (const ClassRecord& type, const BoxArguments& arguments);

}
