#include "host/bench/HostCalls.h"
#include "host/bench/WindowDriver.h"
#include <cstdint>

// The host calls functions by types known only at run time; a function type checker cannot follow.
#if defined(__clang__)
#define HOST_CALL __attribute__ ((no_sanitize ("function")))
#else
#define HOST_CALL
#endif

namespace bench
{

namespace
{
using Atoms = std::vector<t_atom>;

/** A 32-bit count with garbage in the upper half. */
std::int64_t wide (t_clong count)
{
    constexpr std::uint64_t rubbish = 0x5A5A5A5A00000000;
    return static_cast<std::int64_t> (rubbish | static_cast<std::uint32_t> (count));
}

t_clong countOf (const Atoms& atoms) { return static_cast<t_clong> (atoms.size()); }
t_atom* dataOf (Atoms& atoms) { return atoms.empty() ? nullptr : atoms.data(); }

template <typename Function>
Function as (method function)
{
    return reinterpret_cast<Function> (reinterpret_cast<void (*)()> (function));
}

/** A typed argument as passed: in an integer or a floating-point register. */
struct Argument
{
    bool isFloat = false;
    double number = 0;
    void* pointer = nullptr;
};

/** Builds the call one argument at a time, so that each uses its own kind of register. */
template <typename... Before>
HOST_CALL void callTyped (method function, void* x, const Argument* next, std::size_t left, Before... before)
{
    if (left == 0)
        as<void (*) (void*, Before...)> (function) (x, before...);
    else if constexpr (sizeof...(Before) < MAX_TYPED_ARGUMENTS) {
        if (next->isFloat)
            callTyped (function, x, next + 1, left - 1, before..., next->number);
        else
            callTyped (function, x, next + 1, left - 1, before..., next->pointer);
    }
}

enum class Fit
{
    fits,
    isMissing,
    isBad
};

/** Converts an atom to one argument; without an atom, uses the type's default if it has one. */
Fit fitArgument (short type, const t_atom* atom, Argument& argument)
{
    const bool isNumber = atom != nullptr && (atom->a_type == A_LONG || atom->a_type == A_FLOAT);
    switch (type) {
    case A_LONG:
    case A_DEFLONG:
        argument.pointer = reinterpret_cast<void*> (static_cast<std::intptr_t> (atom_getlong (atom)));
        break;
    case A_FLOAT:
    case A_DEFFLOAT:
        argument.isFloat = true;
        argument.number = atom_getfloat (atom);
        break;
    case A_SYM:
    case A_DEFSYM:
        argument.pointer = atom_getsym (atom);
        if (atom == nullptr)
            return type == A_DEFSYM ? Fit::fits : Fit::isMissing;
        return atom->a_type == A_SYM ? Fit::fits : Fit::isBad;
    case A_OBJ:
        argument.pointer = atom_getobj (atom);
        return atom == nullptr ? Fit::isMissing : argument.pointer == nullptr ? Fit::isBad : Fit::fits;
    default:
        return Fit::isBad;
    }
    if (atom == nullptr)
        return type == A_DEFLONG || type == A_DEFFLOAT ? Fit::fits : Fit::isMissing;
    return isNumber ? Fit::fits : Fit::isBad;
}
}

HOST_CALL void callFree (method function, void* x) { as<void (*) (void*)> (function) (x); }
HOST_CALL void callQelem (method function, void* ob) { as<void (*) (void*)> (function) (ob); }

HOST_CALL void* callNew (method function, t_symbol* name, const Atoms& atoms)
{
    auto copy = atoms;
    return as<void* (*)(t_symbol*, std::int64_t, t_atom*)> (function) (name, wide (countOf (copy)), dataOf (copy));
}

HOST_CALL void* callUntyped (method function, void* x, const std::array<void*, 8>& p)
{
    return as<void* (*)(void*, void*, void*, void*, void*, void*, void*, void*, void*)> (function) (
        x, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7]);
}

HOST_CALL void callDeferred (method function, void* ob, t_symbol* sym, Atoms& atoms)
{
    const ObjectAtWork atWork (ob);
    as<void (*) (void*, t_symbol*, std::int64_t, t_atom*)> (function) (ob, sym, wide (countOf (atoms)), dataOf (atoms));
}

HOST_CALL t_max_err callGetter (method function, void* x, void* attribute, t_clong* ac, t_atom** av)
{
    return as<t_max_err (*) (void*, void*, t_clong*, t_atom**)> (function) (x, attribute, ac, av);
}

HOST_CALL t_max_err callSetter (method function, void* x, void* attribute, Atoms& atoms)
{
    return as<t_max_err (*) (void*, void*, std::int64_t, t_atom*)> (function) (x, attribute, wide (countOf (atoms)),
                                                                               dataOf (atoms));
}

HOST_CALL t_max_err callNotify (method function, void* x, t_symbol* name, t_symbol* message, void* sender, void* data)
{
    return as<t_max_err (*) (void*, t_symbol*, t_symbol*, void*, void*)> (function) (x, name, message, sender, data);
}

HOST_CALL t_max_err callGetValueOf (method function, void* x, t_clong* ac, t_atom** av)
{
    return as<t_max_err (*) (void*, t_clong*, t_atom**)> (function) (x, ac, av);
}

HOST_CALL t_max_err callSetValueOf (method function, void* x, Atoms& atoms)
{
    return as<t_max_err (*) (void*, std::int64_t, t_atom*)> (function) (x, wide (countOf (atoms)), dataOf (atoms));
}

HOST_CALL void callAssist (method function, void* x, void* box, t_clong io, t_clong index, char* text)
{
    as<void (*) (void*, void*, std::int64_t, std::int64_t, char*)> (function) (x, box, wide (io), wide (index), text);
}

HOST_CALL const char* callWithAtoms (const Method& called, void* x, t_symbol* selector, Atoms& atoms)
{
    if (! called.types.empty() && called.types.front() == A_GIMME) {
        as<void (*) (void*, t_symbol*, std::int64_t, t_atom*)> (called.function) (x, selector, wide (countOf (atoms)),
                                                                                  dataOf (atoms));
        return "";
    }
    if (atoms.size() > called.types.size())
        return "extra";
    std::array<Argument, MAX_TYPED_ARGUMENTS> arguments;
    for (std::size_t i = 0; i < called.types.size(); ++i) {
        const auto fit = fitArgument (called.types[i], i < atoms.size() ? &atoms[i] : nullptr, arguments[i]);
        if (fit != Fit::fits)
            return fit == Fit::isMissing ? "missing" : "bad";
    }
    callTyped (called.function, x, arguments.data(), called.types.size());
    return "";
}

}
