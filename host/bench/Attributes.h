#pragma once
#include "host/bench/Objects.h"
#include <vector>

namespace bench
{

/** How an attribute type's values are stored, and how they convert to atoms. */
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

/** Null for an unknown type. */
const FieldType* fieldTypeNamed (const t_symbol* name);

/** Scales and clips numbers, in double precision. */
struct Filter
{
    double scale = 1;
    double min = 0;
    double max = 0;
    bool useMin = false;
    bool useMax = false;
};

/** An attribute of a class: stored in a field of the object's struct or of its box, or, as another attribute's
    property, in a value of its own. */
struct Attribute
{
    t_attr visible{};
    const FieldType* type = nullptr;
    std::size_t offset = 0;
    std::size_t countOffset = 0; // of a 32-bit count; 0: fixed size
    std::size_t size = 1;
    std::vector<Filter> filtersOnSet;
    std::vector<Filter> filtersOnGet;
    std::vector<Attribute*> properties; // owned, in order of addition
    std::vector<t_atom> value;          // of a property

    [[nodiscard]] bool has (e_max_attrflags flag) const { return (visible.flags & flag) != 0; }
    [[nodiscard]] Attribute* findProperty (const t_symbol* name) const;
};

/** Null if x is not an attribute. */
Attribute* attributeIn (const void* x);

/** Adds a property, converted to its type; replaces one of the same name. */
void addProperty (Attribute& attribute, const char* name, t_symbol* type, t_clong flags, std::vector<t_atom> value);

/** Finds an attribute of an instance: its class's, its box's, or an attribute's property. */
Attribute* findAttribute (const void* x, t_symbol* name);
std::vector<Attribute*> attributesOf (const void* x);

/** Applies the filters; numbers are converted to the attribute's type, symbols are kept. */
void applyFilters (const std::vector<Filter>& filters, const Attribute& attribute, t_clong ac, t_atom* av);

/** The default getter and setter. */
std::vector<t_atom> readField (const Attribute& attribute, const void* x);
void writeField (const Attribute& attribute, void* x, const std::vector<t_atom>& atoms);

/** The attributes common to every box. */
const std::vector<Attribute*>& boxAttributes();

/** Whether asking for a missing property is an error; otherwise it returns no atoms. */
void setMissingPropertyIsError (bool isError);

/** Whether messages that set deferred attributes from other threads are queued for the main thread. */
void setDeferFlagsAreHonoured (bool areHonoured);
[[nodiscard]] bool waitsForMainThread (const Attribute& attribute);

}
