#include "host/bench/Attributes.h"
#include "host/bench/Words.h"
#include <cctype>
#include <cstdarg>
#include <cstring>

namespace bench
{

namespace
{
/** Converts an atom to a type: numbers to one another, and numbers to symbols. */
t_atom converted (const FieldType& type, t_atom atom)
{
    const bool isNumber = atom.a_type == A_LONG || atom.a_type == A_FLOAT;
    switch (type.family) {
    case FieldType::Family::integer:
        if (isNumber)
            atom_setlong (&atom, atom_getlong (&atom));
        break;
    case FieldType::Family::floating:
        if (isNumber && type.bytes == sizeof (float))
            atom_setfloat (&atom, static_cast<double> (static_cast<float> (atom_getfloat (&atom))));
        else if (isNumber)
            atom_setfloat (&atom, atom_getfloat (&atom));
        break;
    case FieldType::Family::symbol:
        if (isNumber)
            atom_setsym (&atom, gensym (textOf (Atoms{ atom }).c_str()));
        break;
    default:
        break;
    }
    return atom;
}

t_atom longAtom (t_atom_long value)
{
    t_atom atom{};
    atom_setlong (&atom, value);
    return atom;
}

t_atom floatAtom (double value)
{
    t_atom atom{};
    atom_setfloat (&atom, value);
    return atom;
}

t_atom symbolAtom (t_symbol* value)
{
    t_atom atom{};
    atom_setsym (&atom, value);
    return atom;
}

t_atom objectAtom (void* value)
{
    t_atom atom{};
    atom_setobj (&atom, value);
    return atom;
}

/** Reads the argument for a lower-case letter. */
t_atom readOne (char letter, va_list& arguments)
{
    switch (letter) {
    case 'c':
        return longAtom (va_arg (arguments, int));
    case 'l':
        return longAtom (va_arg (arguments, t_atom_long));
    case 'f':
    case 'd':
        return floatAtom (va_arg (arguments, double));
    case 's':
        return symbolAtom (va_arg (arguments, t_symbol*));
    case 'o':
        return objectAtom (va_arg (arguments, void*));
    case 'a':
        return *va_arg (arguments, const t_atom*);
    default:
        return {};
    }
}

template <typename Item, typename Make>
void readItems (int count, va_list& arguments, Atoms& atoms, Make make)
{
    const auto* items = va_arg (arguments, const Item*);
    for (int i = 0; i < count; ++i)
        atoms.push_back (make (items[i]));
}

/** Reads the count and the array for a capital letter. */
void readArray (char letter, va_list& arguments, Atoms& atoms)
{
    const auto count = va_arg (arguments, int);
    switch (letter) {
    case 'C':
        return readItems<char> (count, arguments, atoms, longAtom);
    case 'L':
        return readItems<t_atom_long> (count, arguments, atoms, longAtom);
    case 'F':
        return readItems<float> (count, arguments, atoms, [] (float v) { return floatAtom (static_cast<double> (v)); });
    case 'D':
        return readItems<double> (count, arguments, atoms, floatAtom);
    case 'S':
        return readItems<t_symbol*> (count, arguments, atoms, symbolAtom);
    case 'O':
        return readItems<void*> (count, arguments, atoms, objectAtom);
    default:
        return readItems<t_atom> (count, arguments, atoms, [] (const t_atom& atom) { return atom; });
    }
}

Atoms readFormatted (const char* format, va_list& arguments)
{
    Atoms atoms;
    for (; *format != 0; ++format) {
        if (std::strchr ("clfdsoa", *format) != nullptr)
            atoms.push_back (readOne (*format, arguments));
        else if (std::strchr ("CLFDSOA", *format) != nullptr)
            readArray (*format, arguments, atoms);
    }
    return atoms;
}
}

void addProperty (Attribute& attribute, const char* name, t_symbol* type, t_clong flags, std::vector<t_atom> value)
{
    auto* property = reinterpret_cast<Attribute*> (attr_offset_new (name, type, flags, nullptr, nullptr, 0));
    if (property == nullptr)
        return;
    if (property->type != nullptr)
        for (auto& atom : value)
            atom = converted (*property->type, atom);
    property->value = std::move (value);
    for (auto*& existing : attribute.properties)
        if (existing->visible.name == property->visible.name) {
            object_free (std::exchange (existing, property));
            return;
        }
    attribute.properties.push_back (property);
}

}

using namespace bench;

t_max_err class_attr_addattr_parse (t_class* c, const char* attribute, const char* property, t_symbol* type,
                                    t_clong flags, const char* text)
{
    auto* found = c == nullptr ? nullptr : recordOf (c)->findAttribute (gensym (attribute));
    if (found == nullptr || property == nullptr || text == nullptr || type == nullptr)
        return MAX_ERR_GENERIC;
    addProperty (*found, property, type, flags, atomsOf (std::string (text)));
    return MAX_ERR_NONE;
}

t_max_err class_attr_addattr_format (t_class* c, const char* attribute, const char* property, t_symbol* type,
                                     t_clong flags, const char* format, ...)
{
    auto* found = c == nullptr ? nullptr : recordOf (c)->findAttribute (gensym (attribute));
    if (found == nullptr || property == nullptr || format == nullptr || type == nullptr)
        return MAX_ERR_GENERIC;
    va_list arguments;
    va_start (arguments, format);
    addProperty (*found, property, type, flags, readFormatted (format, arguments));
    va_end (arguments);
    return MAX_ERR_NONE;
}
