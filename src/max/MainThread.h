#pragma once
#include "max/HostFunction.h"

#include <algorithm>
#include <limits>

namespace orvanemax
{

/** The host counts a deferred call's atoms in 16 bits; longer lists are truncated. */
[[nodiscard]] inline short deferrable (t_clong argc) noexcept
{
    return static_cast<short> (std::clamp<t_clong> (argc, 0, std::numeric_limits<short>::max()));
}

/** Runs a function on the main thread with a copy of the atoms: from the main thread by defer_medium, which may run it
    now or later; from any other thread at the end of the queue. defer_medium would queue only for the scheduler thread,
    so other threads need defer_low. */
inline void runOnMainThread (void* object, HostFunction function, t_symbol* selector, t_clong argc, const t_atom* argv)
{
    auto* atoms = const_cast<t_atom*> (argv); // the host copies them
    if (systhread_ismainthread())
        defer_medium (object, function, selector, deferrable (argc), atoms);
    else
        defer_low (object, function, selector, deferrable (argc), atoms);
}

/** A message handler that runs only on the main thread. */
using Handler = void (*) (void* object, t_symbol* selector, t_clong argc, t_atom* argv);

/** A handler with a deferred call's signature. */
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

/** Register this for a handler that touches the component, an outlet or a dialog: runs at once on the main thread, and
    is deferred to it from any other. */
template <Handler handler>
void mainThreadEntry (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    if (systhread_ismainthread())
        handler (object, selector, argc, argv);
    else
        defer_low (object, hostFunction<deferredHandler<handler>>(), selector, deferrable (argc), argv);
}

/** Register this for a handler that must always be queued. */
template <Handler handler>
void queuedEntry (void* object, t_symbol* selector, t_clong argc, t_atom* argv)
{
    runOnMainThread (object, hostFunction<deferredHandler<handler>>(), selector, argc, argv);
}

/** Both, for a message without arguments. */
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
