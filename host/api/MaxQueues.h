#pragma once
#include "host/api/MaxLinkage.h"
#include "host/api/MaxTypes.h"

/** The main thread's queue and the scheduler. Any thread. A deferred function has the form
    void f(void* ob, t_symbol* sym, short argc, t_atom* argv); its atoms are copied, and freed after the call. */
extern "C"
{

    MAX_API void* defer (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv);
    MAX_API void* defer_low (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv);
    MAX_API void* defer_medium (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv);
    MAX_API void* defer_front (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv);

    /** Runs after a delay in milliseconds on the scheduler thread; schedule_defer then queues it for the main
        thread. */
    MAX_API void schedule_delay (void* ob, method function, t_clong delay, t_symbol* sym, std::int16_t argc,
                                 t_atom* argv);
    MAX_API void schedule_defer (void* ob, method function, t_clong delay, t_symbol* sym, std::int16_t argc,
                                 t_atom* argv);

    // A queue element runs void f(void* ob) once on the main thread, however often it was set.
    MAX_API void* qelem_new (void* ob, method function);
    MAX_API void qelem_set (t_qelem* q);
    MAX_API void qelem_unset (t_qelem* q);
    MAX_API void qelem_front (t_qelem* q);
    MAX_API void qelem_free (t_qelem* q);

    MAX_API std::int16_t systhread_ismainthread (void);
    MAX_API t_clong isr (void); // non-zero on the scheduler thread
}
