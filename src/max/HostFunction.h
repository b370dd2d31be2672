#pragma once
#include "host/api/MaxApi.h"
#include "max/Guarded.h"

#include <type_traits>

namespace orvanemax
{

template <auto function>
struct HostEntry;

/** Wraps a function of ours, whose first argument is the object, for the host: registers the call as in progress (see
    ObjectCall) and lets no exception reach the host. A setter or getter that throws returns MAX_ERR_GENERIC. */
template <typename Result, typename Object, typename... Rest, Result (*function) (Object*, Rest...)>
struct HostEntry<function>
{
    static Result call (Object* x, Rest... rest) noexcept
    {
        const ObjectCall call (x);
        try {
            return function (x, rest...);
        } catch (...) {
            reportException (x);
        }
        if constexpr (! std::is_void_v<Result>)
            return MAX_ERR_GENERIC;
    }
};

/** The same for constructors; returns null on an exception. */
template <void* (*function) (t_symbol*, t_clong, t_atom*)>
struct HostConstructor
{
    static void* call (t_symbol* name, t_clong argc, t_atom* argv) noexcept
    {
        try {
            return function (name, argc, argv);
        } catch (...) {
            reportException (nullptr);
        }
        return nullptr;
    }
};

/** The same for destructors: ends the object instead of registering a call. */
template <auto function>
struct HostDestructor;

template <typename Object, void (*function) (Object*)>
struct HostDestructor<function>
{
    static void call (Object* x) noexcept
    {
        try {
            function (x);
        } catch (...) {
            reportException (nullptr);
        }
    }
};

/** A function in the form the host takes. Only hostFunction() and its variants make one, so none is unguarded. An empty
    one leaves the work to the host. */
class HostFunction
{
public:
    constexpr HostFunction() = default;
    [[nodiscard]] operator method() const noexcept { return function; }

private:
    template <auto guarded>
    friend HostFunction hostFunction() noexcept;
    template <void* (*guarded) (t_symbol*, t_clong, t_atom*)>
    friend HostFunction hostConstructor() noexcept;
    template <auto guarded>
    friend HostFunction hostDestructor() noexcept;
    explicit HostFunction (method f) noexcept : function (f) {}

    method function = nullptr;
};

template <auto function>
[[nodiscard]] HostFunction hostFunction() noexcept
{
    return HostFunction (max_method (HostEntry<function>::call));
}

template <void* (*function) (t_symbol*, t_clong, t_atom*)>
[[nodiscard]] HostFunction hostConstructor() noexcept
{
    return HostFunction (max_method (HostConstructor<function>::call));
}

template <auto function>
[[nodiscard]] HostFunction hostDestructor() noexcept
{
    return HostFunction (max_method (HostDestructor<function>::call));
}

}
