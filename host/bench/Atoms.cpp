#include "host/api/MaxApi.h"
#include "host/bench/Words.h"
#include <algorithm>
#include <climits>
#include <cmath>

namespace
{
t_atom_long truncated (double value)
{
    constexpr double edge = 9223372036854775808.0;
    if (std::isnan (value))
        return 0;
    if (value >= edge)
        return LLONG_MAX;
    if (value < -edge)
        return LLONG_MIN;
    return static_cast<t_atom_long> (value);
}

t_max_err fill (t_atom* a, short type, word value)
{
    if (a == nullptr)
        return MAX_ERR_INVALID_PTR;
    a->a_type = type;
    a->a_w = value;
    return MAX_ERR_NONE;
}

template <typename Value, typename Read>
t_max_err copyNumbers (t_clong ac, const t_atom* av, t_clong count, Value* values, Read read)
{
    if (av == nullptr || values == nullptr)
        return ac > 0 && count > 0 ? MAX_ERR_INVALID_PTR : MAX_ERR_NONE;
    for (t_clong i = 0; i < std::min (ac, count); ++i)
        values[i] = static_cast<Value> (read (av + i));
    return MAX_ERR_NONE;
}
}

t_max_err atom_setlong (t_atom* a, t_atom_long value)
{
    word w{};
    w.w_long = value;
    return fill (a, A_LONG, w);
}

t_max_err atom_setfloat (t_atom* a, double value)
{
    word w{};
    w.w_float = value;
    return fill (a, A_FLOAT, w);
}

t_max_err atom_setsym (t_atom* a, t_symbol* value)
{
    word w{};
    w.w_sym = value;
    return fill (a, A_SYM, w);
}

t_max_err atom_setobj (t_atom* a, void* value)
{
    word w{};
    w.w_obj = static_cast<t_object*> (value);
    return fill (a, A_OBJ, w);
}

t_atom_long atom_getlong (const t_atom* a)
{
    if (a == nullptr)
        return 0;
    return a->a_type == A_LONG ? a->a_w.w_long : a->a_type == A_FLOAT ? truncated (a->a_w.w_float) : 0;
}

t_atom_float atom_getfloat (const t_atom* a)
{
    if (a == nullptr)
        return 0;
    return a->a_type == A_FLOAT ? a->a_w.w_float : a->a_type == A_LONG ? static_cast<double> (a->a_w.w_long) : 0.0;
}

t_symbol* atom_getsym (const t_atom* a)
{
    return a != nullptr && a->a_type == A_SYM && a->a_w.w_sym != nullptr ? a->a_w.w_sym : gensym ("");
}

void* atom_getobj (const t_atom* a) { return a != nullptr && a->a_type == A_OBJ ? a->a_w.w_obj : nullptr; }
t_clong atom_gettype (const t_atom* a) { return a == nullptr ? t_clong{ A_NOTHING } : a->a_type; }

t_max_err atom_getfloat_array (t_clong ac, t_atom* av, t_clong count, float* values)
{
    return copyNumbers (ac, av, count, values, atom_getfloat);
}

t_max_err atom_getlong_array (t_clong ac, t_atom* av, t_clong count, t_atom_long* values)
{
    return copyNumbers (ac, av, count, values, atom_getlong);
}

t_max_err atom_getdouble_array (t_clong ac, t_atom* av, t_clong count, double* values)
{
    return copyNumbers (ac, av, count, values, atom_getfloat);
}

t_max_err atom_alloc_array (t_clong minsize, t_clong* ac, t_atom** av, char* alloc)
{
    if (ac == nullptr || av == nullptr || alloc == nullptr)
        return MAX_ERR_INVALID_PTR;
    *alloc = 0;
    if (*ac != 0 && *av != nullptr)
        return MAX_ERR_NONE;
    if (minsize < 0)
        return MAX_ERR_GENERIC;
    auto* atoms = sysmem_newptrclear (static_cast<t_ptr_size> (minsize) * sizeof (t_atom));
    if (atoms == nullptr)
        return MAX_ERR_OUT_OF_MEM;
    *av = reinterpret_cast<t_atom*> (atoms);
    *ac = minsize;
    *alloc = 1;
    return MAX_ERR_NONE;
}

t_max_err atom_setparse (t_clong* ac, t_atom** av, const char* text)
{
    if (ac == nullptr || av == nullptr || text == nullptr)
        return MAX_ERR_INVALID_PTR;
    const auto atoms = bench::atomsOf (std::string (text));
    *ac = 0;
    *av = nullptr;
    char alloc = 0;
    const auto error = atom_alloc_array (static_cast<t_clong> (atoms.size()), ac, av, &alloc);
    if (error == MAX_ERR_NONE)
        std::copy (atoms.begin(), atoms.end(), *av);
    return error;
}

namespace
{
bool isObjectOf (const t_atom* a, const char* className)
{
    auto* object = atom_getobj (a);
    return object != nullptr && object_classname (object) == gensym (className);
}
}

t_clong atomisatomarray (t_atom* a) { return isObjectOf (a, "atomarray") ? 1 : 0; }
t_clong atomisdictionary (t_atom* a) { return isObjectOf (a, "dictionary") ? 1 : 0; }
