#include "host/bench/Attributes.h"
#include "host/bench/Console.h"
#include "host/bench/HostCalls.h"
#include <algorithm>
#include <cmath>
#include <cstddef>

namespace bench
{

namespace
{
void freeAttribute (t_object* x)
{
    for (auto* property : reinterpret_cast<Attribute*> (x)->properties)
        object_free (property);
    destroyHostObject<Attribute> (x);
}

// Methods of attribute objects, for object_method.
void* getName (Attribute* a) { return a->visible.name; }
void* getType (Attribute* a) { return a->visible.type; }
void* getFlags (Attribute* a) { return reinterpret_cast<void*> (static_cast<std::intptr_t> (a->visible.flags)); }
void setFlags (Attribute* a, std::intptr_t flags) { a->visible.flags = static_cast<t_clong> (flags); }
void setName (Attribute* a, t_symbol* name) { a->visible.name = name; }

void setMethod (Attribute* a, t_symbol* which, void* function)
{
    auto* accessor = reinterpret_cast<method> (function);
    if (which == gensym ("get"))
        a->visible.get = accessor;
    else if (which == gensym ("set"))
        a->visible.set = accessor;
}

ClassRecord& makeAttributeClass()
{
    auto& type = makeHostClass ("attr_offset", sizeof (Attribute), freeAttribute);
    auto* c = &type.visible;
    class_addmethod (c, max_method (getName), "getname", A_CANT, 0);
    class_addmethod (c, max_method (getType), "gettype", A_CANT, 0);
    class_addmethod (c, max_method (getFlags), "getflags", A_CANT, 0);
    class_addmethod (c, max_method (setFlags), "setflags", A_CANT, 0);
    class_addmethod (c, max_method (setName), "setname", A_CANT, 0);
    class_addmethod (c, max_method (setMethod), "setmethod", A_CANT, 0);
    return type;
}

ClassRecord& attributeClass()
{
    static auto& type = makeAttributeClass();
    return type;
}

Attribute* makeAttribute (const char* name, t_symbol* type, t_clong flags)
{
    if (name == nullptr || type == nullptr)
        return nullptr;
    auto* made = makeHostObject<Attribute> (attributeClass());
    made->visible.name = gensym (name);
    made->visible.type = type;
    made->visible.flags = flags;
    made->type = fieldTypeNamed (type);
    return made;
}

void* baseOf (const Attribute& attribute, const void* x)
{
    auto* head = headOf (x);
    return attribute.has (ATTR_IS_JBOXATTR) && head != nullptr ? head->box : const_cast<void*> (x);
}

char* fieldOf (const Attribute& attribute, const void* x)
{
    return static_cast<char*> (baseOf (attribute, x)) + attribute.offset;
}

t_clong* countOf (const Attribute& attribute, const void* x)
{
    if (attribute.countOffset == 0)
        return nullptr;
    return reinterpret_cast<t_clong*> (static_cast<char*> (baseOf (attribute, x)) + attribute.countOffset);
}

t_atom filtered (const Filter& filter, FieldType::Family family, t_atom atom)
{
    if (atom.a_type != A_LONG && atom.a_type != A_FLOAT)
        return atom;
    const auto before = atom_getfloat (&atom);
    if (std::isnan (before))
        return atom; // within no bounds, and not an integer: left to the setter
    auto value = before * filter.scale;
    if (filter.useMin && value < filter.min)
        value = filter.min;
    if (filter.useMax && value > filter.max)
        value = filter.max;
    if (value != before)
        atom_setfloat (&atom, value);
    if (family == FieldType::Family::integer && atom.a_type == A_FLOAT)
        atom_setlong (&atom, atom_getlong (&atom));
    else if (family == FieldType::Family::floating && atom.a_type == A_LONG)
        atom_setfloat (&atom, atom_getfloat (&atom));
    return atom;
}

struct BoxAttributeRow
{
    const char* name;
    const char* type;
    std::size_t offset;
    std::size_t size;
};

// offsetof on a struct with a std::string works with every compiler we use.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
constexpr BoxAttributeRow boxAttributeRows[] = {
    { "annotation", "symbol", offsetof (BoxRecord, annotation), 1 },
    { "annotation_name", "symbol", offsetof (BoxRecord, annotation_name), 1 },
    { "background", "char", offsetof (BoxRecord, background), 1 },
    { "hidden", "char", offsetof (BoxRecord, hidden), 1 },
    { "hint", "symbol", offsetof (BoxRecord, hint), 1 },
    { "ignoreclick", "char", offsetof (BoxRecord, ignoreclick), 1 },
    { "parameter_enable", "char", offsetof (BoxRecord, parameter_enable), 1 },
    { "patching_position", "float32", offsetof (BoxRecord, patching_rect), 2 },
    { "patching_rect", "float32", offsetof (BoxRecord, patching_rect), 4 },
    { "patching_size", "float32", offsetof (BoxRecord, patching_rect) + 2 * sizeof (float), 2 },
    { "varname", "symbol", offsetof (BoxRecord, varname), 1 },
};
#pragma GCC diagnostic pop

std::vector<Attribute*> makeBoxAttributes()
{
    std::vector<Attribute*> all;
    for (const auto& row : boxAttributeRows) {
        auto* made = makeAttribute (row.name, gensym (row.type), ATTR_IS_JBOXATTR);
        made->offset = row.offset;
        made->size = row.size;
        all.push_back (made);
    }
    return all;
}
}

const std::vector<Attribute*>& boxAttributes()
{
    static const auto& all = *new std::vector<Attribute*> (makeBoxAttributes());
    return all;
}

Attribute* attributeIn (const void* x)
{
    const auto* head = headOf (x);
    return head != nullptr && head->type == &attributeClass() ? reinterpret_cast<Attribute*> (const_cast<void*> (x))
                                                              : nullptr;
}

Attribute* Attribute::findProperty (const t_symbol* name) const
{
    for (auto* property : properties)
        if (property->visible.name == name)
            return property;
    return nullptr;
}

Attribute* findAttribute (const void* x, t_symbol* name)
{
    if (const auto* attribute = attributeIn (x))
        return attribute->findProperty (name);
    const auto* head = headOf (x);
    if (head == nullptr)
        return nullptr;
    if (auto* found = head->type->findAttribute (name))
        return found;
    for (auto* common : boxAttributes())
        if (head->box != nullptr && common->visible.name == name)
            return common;
    return nullptr;
}

std::vector<Attribute*> attributesOf (const void* x)
{
    if (const auto* attribute = attributeIn (x))
        return attribute->properties;
    const auto* head = headOf (x);
    if (head == nullptr)
        return {};
    auto all = head->type->attributes;
    if (head->box != nullptr)
        all.insert (all.end(), boxAttributes().begin(), boxAttributes().end());
    return all;
}

void applyFilters (const std::vector<Filter>& filters, const Attribute& attribute, t_clong ac, t_atom* av)
{
    const auto family = attribute.type == nullptr ? FieldType::Family::atom : attribute.type->family;
    for (const auto& filter : filters)
        for (t_clong i = 0; i < ac; ++i)
            av[i] = filtered (filter, family, av[i]);
}

std::vector<t_atom> readField (const Attribute& attribute, const void* x)
{
    if (attributeIn (x) != nullptr)
        return attribute.value;
    std::vector<t_atom> atoms;
    if (attribute.type == nullptr)
        return atoms;
    auto count = attribute.size;
    if (const auto* counted = countOf (attribute, x))
        count = std::min (count, static_cast<std::size_t> (std::max (*counted, 0)));
    const auto* field = fieldOf (attribute, x);
    for (std::size_t i = 0; i < count; ++i)
        atoms.push_back (attribute.type->read (field + i * attribute.type->bytes));
    return atoms;
}

void writeField (const Attribute& attribute, void* x, const std::vector<t_atom>& atoms)
{
    if (attribute.type == nullptr)
        return;
    const auto count = std::min (attribute.size, atoms.size());
    auto* field = fieldOf (attribute, x);
    for (std::size_t i = 0; i < count; ++i)
        attribute.type->write (field + i * attribute.type->bytes, atoms[i]);
    if (auto* counted = countOf (attribute, x))
        *counted = static_cast<t_clong> (count);
}

namespace
{
Filter clip (double min, double max, t_clong usemin, t_clong usemax, double scale = 1)
{
    return { scale, min, max, usemin != 0, usemax != 0 };
}

t_max_err addFilters (void* attribute, const Filter& filter, bool onSet, bool onGet)
{
    auto* found = attributeIn (attribute);
    if (found == nullptr)
        return MAX_ERR_INVALID_PTR;
    if (onSet)
        found->filtersOnSet.push_back (filter);
    if (onGet)
        found->filtersOnGet.push_back (filter);
    return MAX_ERR_NONE;
}
}

}

using namespace bench;

t_object* attr_offset_new (const char* name, t_symbol* type, t_clong flags, method get, method set, t_clong offset)
{
    return attr_offset_array_new (name, type, 1, flags, get, set, 0, offset);
}

t_object* attr_offset_array_new (const char* name, t_symbol* type, t_clong size, t_clong flags, method get, method set,
                                 t_clong offsetcount, t_clong offset)
{
    auto* made = makeAttribute (name, type, flags);
    if (made == nullptr || size < 0 || offset < 0 || offsetcount < 0)
        return nullptr;
    made->visible.get = get;
    made->visible.set = set;
    made->offset = static_cast<std::size_t> (offset);
    made->countOffset = static_cast<std::size_t> (offsetcount);
    made->size = static_cast<std::size_t> (size);
    return &made->visible.ob;
}

t_max_err attr_addfilter_clip (void* attribute, double min, double max, t_clong usemin, t_clong usemax)
{
    return addFilters (attribute, clip (min, max, usemin, usemax), true, true);
}

t_max_err attr_addfilterset_clip (void* attribute, double min, double max, t_clong usemin, t_clong usemax)
{
    return addFilters (attribute, clip (min, max, usemin, usemax), true, false);
}

t_max_err attr_addfilterget_clip (void* attribute, double min, double max, t_clong usemin, t_clong usemax)
{
    return addFilters (attribute, clip (min, max, usemin, usemax), false, true);
}

t_max_err attr_addfilter_clip_scale (void* attribute, double scale, double min, double max, t_clong usemin,
                                     t_clong usemax)
{
    return addFilters (attribute, clip (min, max, usemin, usemax, scale), true, true);
}
