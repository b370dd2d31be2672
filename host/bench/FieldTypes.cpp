#include "host/bench/Attributes.h"
#include <cstring>

namespace bench
{

namespace
{
using Family = FieldType::Family;

#if defined(__SANITIZE_THREAD__)
#define HOST_READ __attribute__ ((no_sanitize_thread))
#else
#define HOST_READ
#endif

/** The host's getter reads a field on the calling thread without a lock: that race is the host's. */
template <typename Value>
HOST_READ Value valueAt (const void* field)
{
    Value value;
    std::memcpy (&value, field, sizeof (Value)); // NOLINT(bugprone-sizeof-expression): pointers are values too
    return value;
}

template <typename Integer>
t_atom readInteger (const void* field)
{
    t_atom atom{};
    atom_setlong (&atom, valueAt<Integer> (field));
    return atom;
}

template <typename Integer>
void writeInteger (void* field, const t_atom& atom)
{
    const auto value = static_cast<Integer> (atom_getlong (&atom));
    std::memcpy (field, &value, sizeof value);
}

template <typename Float>
t_atom readFloat (const void* field)
{
    t_atom atom{};
    atom_setfloat (&atom, static_cast<double> (valueAt<Float> (field)));
    return atom;
}

template <typename Float>
void writeFloat (void* field, const t_atom& atom)
{
    const auto value = static_cast<Float> (atom_getfloat (&atom));
    std::memcpy (field, &value, sizeof value);
}

/** An unset field reads as the empty symbol. */
t_atom readSymbol (const void* field)
{
    auto* value = valueAt<t_symbol*> (field);
    t_atom atom{};
    atom_setsym (&atom, value == nullptr ? gensym ("") : value);
    return atom;
}

void writeSymbol (void* field, const t_atom& atom)
{
    auto* value = atom_getsym (&atom);
    std::memcpy (field, &value, sizeof (void*));
}

t_atom readAtom (const void* field) { return valueAt<t_atom> (field); }

void writeAtom (void* field, const t_atom& atom) { std::memcpy (field, &atom, sizeof atom); }

t_atom readObject (const void* field)
{
    t_atom atom{};
    atom_setobj (&atom, valueAt<void*> (field));
    return atom;
}

void writeObject (void* field, const t_atom& atom)
{
    auto* value = atom_getobj (&atom);
    std::memcpy (field, &value, sizeof value);
}

// "long" is Max's, 32 bits; the upper half of a wider field is left alone.
constexpr FieldType fieldTypes[] = {
    { "char", Family::integer, 1, readInteger<signed char>, writeInteger<signed char> },
    { "long", Family::integer, 4, readInteger<t_clong>, writeInteger<t_clong> },
    { "int32", Family::integer, 4, readInteger<std::int32_t>, writeInteger<std::int32_t> },
    { "atom_long", Family::integer, 8, readInteger<t_atom_long>, writeInteger<t_atom_long> },
    { "filepath", Family::integer, 2, readInteger<t_filepath>, writeInteger<t_filepath> },
    { "float32", Family::floating, 4, readFloat<float>, writeFloat<float> },
    { "float64", Family::floating, 8, readFloat<double>, writeFloat<double> },
    { "symbol", Family::symbol, 8, readSymbol, writeSymbol },
    { "atom", Family::atom, 16, readAtom, writeAtom },
    { "object", Family::object, 8, readObject, writeObject },
    { "pointer", Family::object, 8, readObject, writeObject },
};
}

const FieldType* fieldTypeNamed (const t_symbol* name)
{
    for (const auto& type : fieldTypes)
        if (name != nullptr && std::strcmp (type.name, name->s_name) == 0)
            return &type;
    return nullptr;
}

}
