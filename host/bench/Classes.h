#pragma once
#include "host/api/MaxApi.h"
#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

namespace bench
{

struct Attribute;

struct Method
{
    t_symbol* name = nullptr;
    method function = nullptr;
    std::vector<short> types; // A_...; empty for a method without arguments

    /** Not reachable by messages; the host calls it by name. */
    [[nodiscard]] bool isForHostOnly() const { return ! types.empty() && types.front() == A_CANT; }
};

/** The host's record of a class: the public part first, then private data. Never freed. */
struct ClassRecord
{
    t_class visible{};
    std::vector<Method> methods;        // in order of registration; the later definition replaces one of the same name
    std::vector<Attribute*> attributes; // in order of registration
    std::unordered_map<t_symbol*, std::size_t> methodIndex;
    std::unordered_map<t_symbol*, Attribute*> attributeIndex;
    t_messlist list[2]{}; // objects point into it: entry -1 holds the class

    [[nodiscard]] const Method* findMethod (t_symbol* name) const;
    [[nodiscard]] Attribute* findAttribute (t_symbol* name) const;
    void add (Method added);
    void add (Attribute* added);
};

ClassRecord* recordOf (t_class* c);

/** A class of the host's own, without a name space. `mfree` runs when one of its objects is freed. */
ClassRecord& makeHostClass (const char* name, std::size_t size, void (*mfree) (t_object*));

}
