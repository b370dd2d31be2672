#pragma once
#include "external/HalcyraControl.h"

/** The grouped messages that set the reverberator, as they come from the inlet. They test their atoms and hand what is
    good to the gate. Any thread. */
void halcyra_control_direct (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_room (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_early (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_cluster (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_reverb (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_roomsize (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** Sends every parameter and position out of the left outlet. */
void halcyra_control_bang (t_halcyra_control* x);
/** Sets filters and time structure back to their defaults. */
void halcyra_control_reset (t_halcyra_control* x);
