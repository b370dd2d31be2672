#pragma once
#include "host/bench/Objects.h"
#include <vector>

namespace bench
{

/** How the values of an attribute type lie in memory, and how they travel as atoms. */
struct FieldType
{
    enum class Family
    {
        integer,
        floating,
        symbol,
        atom,
        object
    };

    const char* name;
    Family family;
    std::size_t bytes;
    t_atom (*read) (const void* field);
    void (*write) (void* field, const t_atom& atom);
};

/** Null for a type that nobody knows. */
const FieldType* fieldTypeNamed (const t_symbol* name);

/** Scales and clips numbers, as doubles. */
struct Filter
{
    double scale = 1;
    double min = 0;
    double max = 0;
    bool useMin = false;
    bool useMax = false;
};

/** An attribute of a class: on a field of the object's record, of its box, or, as a property of another attribute,
    with a value of its own. */
struct Attribute
{
    t_attr visible{};
    const FieldType* type = nullptr;
    std::size_t offset = 0;
    std::size_t countOffset = 0; // of a 32-bit count; 0: the size is fixed
    std::size_t size = 1;
    std::vector<Filter> filtersOnSet;
    std::vector<Filter> filtersOnGet;
    std::vector<Attribute*> properties; // owned, in order of addition
    std::vector<t_atom> value;          // of a property

    [[nodiscard]] bool has (e_max_attrflags flag) const { return (visible.flags & flag) != 0; }
    [[nodiscard]] Attribute* findProperty (const t_symbol* name) const;
};

/** Null for what is no attribute. */
Attribute* attributeIn (const void* x);

/** A property in place of the one of the same name, its atoms brought to its type. */
void addProperty (Attribute& attribute, const char* name, t_symbol* type, t_clong flags, std::vector<t_atom> value);

/** An attribute of an instance: of its class or, in a box, one that every box has; a property of an attribute. */
Attribute* findAttribute (const void* x, t_symbol* name);
std::vector<Attribute*> attributesOf (const void* x);

/** The atoms after the filters: numbers take the kind of the attribute's type, symbols stay. */
void applyFilters (const std::vector<Filter>& filters, const Attribute& attribute, t_clong ac, t_atom* av);

/** Reads and sets by the default accessors. */
std::vector<t_atom> readField (const Attribute& attribute, const void* x);
void writeField (const Attribute& attribute, void* x, const std::vector<t_atom>& atoms);

/** The attributes of every box. */
const std::vector<Attribute*>& boxAttributes();

/** Whether asking for a property that is not there is an error; else it is an answer without atoms. */
void setMissingPropertyIsError (bool isError);

/** Whether messages from other threads that set attributes flagged as deferred wait for the main thread. */
void setDeferFlagsAreHonoured (bool areHonoured);
[[nodiscard]] bool waitsForMainThread (const Attribute& attribute);

}
