#pragma once
#include "host/api/MaxObjects.h"
#include <cstddef>
#include <type_traits>

/** Replacements for macros of Max's own header. */

/** Converts any function to a method, the form that the host takes. */
template <typename Result, typename... Arguments>
inline method max_method (Result (*function) (Arguments...))
{
    return reinterpret_cast<method> (reinterpret_cast<void (*)()> (function));
}

/** Converts a pointer or an integer to pointer width. Floats cannot be passed this way. */
template <typename Value>
inline void* max_pointer (Value value)
{
    static_assert (! std::is_floating_point_v<Value>, "no floats through object_method");
    if constexpr (std::is_null_pointer_v<Value>)
        return nullptr;
    else if constexpr (std::is_pointer_v<Value> && std::is_function_v<std::remove_pointer_t<Value>>)
        return reinterpret_cast<void*> (value);
    else if constexpr (std::is_pointer_v<Value>)
        return const_cast<void*> (static_cast<const void*> (value));
    else
        return reinterpret_cast<void*> (static_cast<std::intptr_t> (value));
}

/** Calls an object's method untyped, with exactly ten pointers, and returns its result or null. */
template <typename... Arguments>
inline void* object_method (void* x, t_symbol* selector, Arguments... arguments)
{
    static_assert (sizeof...(arguments) <= 8, "at most eight arguments");
    void* p[9] = { max_pointer (arguments)..., nullptr };
    return object_method_imp (x, selector, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7]);
}

#define CLASS_BOX gensym ("box")
#define CLASS_NOBOX gensym ("nobox")

/** Offset of a field in an object's struct, as attr_offset_new takes it. */
#define calcoffset(record, field) static_cast<t_clong> (offsetof (record, field))
