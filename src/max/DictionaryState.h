#pragma once
#include "host/api/MaxApi.h"

#include <initializer_list>

/** Attributes in dictionaries: what a box is created from, and the messages that send and read them. Main thread. */
namespace orvanemax
{

/** Sets everything that the dictionary of a box holds; with check, tells of `@` words that are no attributes. False,
    and told, when there is no dictionary. */
bool processDictionary (void* object, t_clong argc, t_atom* argv, bool check);

/** Sets the named entries alone. All are tried; false, and told, if one is missing. */
bool processEntries (void* object, t_clong argc, t_atom* argv, std::initializer_list<const char*> names);

}

/** `dumpdict` sends a dictionary of all visible attributes, `dumpdict NAME ...` one of the named ones. */
void orvanemax_dumpdict (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** `dictionary NAME` sets the attributes that a registered dictionary holds. */
void orvanemax_dictionary (void* x, t_symbol* name);

namespace orvanemax
{

/** A dictionary of ours, freed at the end of its scope. */
class OwnedDictionary
{
public:
    OwnedDictionary() noexcept : dictionary (dictionary_new()) {}
    ~OwnedDictionary() { object_free (dictionary); }
    OwnedDictionary (const OwnedDictionary&) = delete;
    OwnedDictionary& operator= (const OwnedDictionary&) = delete;

    [[nodiscard]] t_dictionary* get() const noexcept { return dictionary; }
    /** Under a name of its own, for receivers; the result is what the host registered. */
    bool registerUnderUniqueName (t_symbol*& name) noexcept
    {
        name = symbol_unique();
        dictionary = dictobj_register (dictionary, &name);
        return dictionary != nullptr;
    }

private:
    t_dictionary* dictionary;
};

/** Adds an attribute's value under its name; one that holds nothing is left out. Failures are told. */
void appendAttributeToDictionary (void* object, t_symbol* name, t_dictionary* target);

}
