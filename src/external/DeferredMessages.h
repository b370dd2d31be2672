#pragma once
#include "external/HalcyraControl.h"

/** The gate from any thread to the component for reverb messages: schedules the selector's handler on the main thread
    with a copy of the atoms. Any thread.

    Parameters and filters are listed in ReverbParameters.h. To add another deferred message: give its word a row in
    DeferredMessages.cpp, with its handler there. */
void halcyra_control_defer_msg (t_halcyra_control* x, t_symbol* selector, t_clong argc, const t_atom* argv);
