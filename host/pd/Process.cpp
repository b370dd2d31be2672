#include "host/pd/MessageLoop.h"
#include <pthread.h>
#include <sched.h>

// Two C library calls that the linker redirects here (--wrap), for everything linked in.

extern "C"
{
    int __real___cxa_atexit (void (*function) (void*), void* argument, void* library);
    int __wrap___cxa_atexit (void (*function) (void*), void* argument, void* library);
    int __real_pthread_create (pthread_t* thread, const pthread_attr_t* attributes, void* (*body) (void*),
                               void* argument);
    int __wrap_pthread_create (pthread_t* thread, const pthread_attr_t* attributes, void* (*body) (void*),
                               void* argument);

    /** Pd never unloads an external and may call exit() at any point. Statics would still be used after their
        destruction, so none is destroyed. */
    int __wrap___cxa_atexit (void (*) (void*), void*, void*) { return 0; }

    /** New threads would inherit the real-time priority of Pd's; ours must not compete with audio. */
    int __wrap_pthread_create (pthread_t* thread, const pthread_attr_t* attributes, void* (*body) (void*),
                               void* argument)
    {
        pthread_attr_t own;
        if (attributes != nullptr)
            own = *attributes;
        else
            pthread_attr_init (&own);
        const sched_param lowest{};
        pthread_attr_setinheritsched (&own, PTHREAD_EXPLICIT_SCHED);
        pthread_attr_setschedpolicy (&own, SCHED_OTHER);
        pthread_attr_setschedparam (&own, &lowest);
        const auto result = __real_pthread_create (thread, &own, body, argument);
        if (attributes == nullptr)
            pthread_attr_destroy (&own);
        return result;
    }
}

namespace MessageLoop
{

void atExit (void (*function) (void*)) { __real___cxa_atexit (function, nullptr, nullptr); }

}
