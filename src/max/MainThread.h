#pragma once
#include "max/HostFunction.h"

#include <algorithm>
#include <limits>

namespace orvanemax
{

/** The host counts the atoms of a deferred call in 16 bits; a longer list loses its end. */
[[nodiscard]] inline short deferrable (t_clong argc) noexcept
{
    return static_cast<short> (std::clamp<t_clong> (argc, 0, std::numeric_limits<short>::max()));
}

/** Runs a deferred function on the main thread with a copy of the atoms: from the main thread by defer_medium, which
    may run it at once or later. From any other it goes to the end of the queue; there defer_medium does the same only
    for the scheduler's thread, so threads of other owners need defer_low. */
inline void runOnMainThread (void* object, HostFunction function, t_symbol* selector, t_clong argc, const t_atom* argv)
{
    auto* atoms = const_cast<t_atom*> (argv); // the host copies them
    if (systhread_ismainthread())
        defer_medium (object, function, selector, deferrable (argc), atoms);
    else
        defer_low (object, function, selector, deferrable (argc), atoms);
}

/** A message's handler, called on the main thread alone. */
using Handler = void (*) (void* object, t_symbol* selector, t_clong argc, t_atom* argv);

/** A handler in the form of a deferred call. */
template <Handler handler>
void deferredHandler (void* object, t_symbol* selector, short argc, t_atom* argv)
{
    handler (object, selector, argc, argv);
}
template <void (*handler) (void* object)>
void deferredBareHandler (void* object, t_symbol*, short, t_atom*)
{
    handler (object);
}

/** What is registered for a handler that touches the component, an outlet or a dialog: a message from another thread
    posts itself to the main thread, where one that came from there runs at once. */
template <Handler handler>
void mainThreadEntry (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    if (systhread_ismainthread())
        handler (object, selector, argc, argv);
    else
        defer_low (object, hostFunction<deferredHandler<handler>>(), selector, deferrable (argc), argv);
}

/** What is registered for a handler that always does its work behind the queue. */
template <Handler handler>
void queuedEntry (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    runOnMainThread (object, hostFunction<deferredHandler<handler>>(), selector, argc, argv);
}

/** The same two for a message that takes no arguments. */
template <void (*handler) (void* object)>
void mainThreadEntry (void* object)
{
    if (systhread_ismainthread())
        handler (object);
    else
        defer_low (object, hostFunction<deferredBareHandler<handler>>(), nullptr, 0, nullptr);
}

template <void (*handler) (void* object)>
void queuedEntry (void* object)
{
    runOnMainThread (object, hostFunction<deferredBareHandler<handler>>(), nullptr, 0, nullptr);
}

}
