#pragma once
#include "host/api/MaxApi.h"

#include <initializer_list>

/** Attributes in dictionaries: the state a box is created from, and the messages that send and read it. Main thread. */
namespace orvanemax
{

/** Sets all attributes in a box's dictionary; with check, logs `@` words that are not attributes. Returns false, and
    logs, if there is no dictionary. */
bool processDictionary (void* object, t_clong argc, t_atom* argv, bool check);

/** Sets only the named entries. Tries all; returns false, and logs, if one is missing. */
bool processEntries (void* object, t_clong argc, t_atom* argv, std::initializer_list<const char*> names);

}

/** `dumpdict` sends a dictionary of all visible attributes, `dumpdict NAME ...` one of those named. */
void orvanemax_dumpdict (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** `dictionary NAME` sets the attributes in a registered dictionary. */
void orvanemax_dictionary (void* x, t_symbol* name);

namespace orvanemax
{

/** Owns a dictionary and frees it at the end of its scope. */
class OwnedDictionary
{
public:
    OwnedDictionary() noexcept : dictionary (dictionary_new()) {}
    ~OwnedDictionary() { object_free (dictionary); }
    OwnedDictionary (const OwnedDictionary&) = delete;
    OwnedDictionary& operator= (const OwnedDictionary&) = delete;

    [[nodiscard]] t_dictionary* get() const noexcept { return dictionary; }
    /** Registers it under a unique name, then set to the host's own; returns success. */
    bool registerUnderUniqueName (t_symbol*& name) noexcept
    {
        name = symbol_unique();
        dictionary = dictobj_register (dictionary, &name);
        return dictionary != nullptr;
    }

private:
    t_dictionary* dictionary;
};

/** Adds an attribute's value under its name; empty ones are skipped. Failures are logged. */
void appendAttributeToDictionary (void* object, t_symbol* name, t_dictionary* target);

}
