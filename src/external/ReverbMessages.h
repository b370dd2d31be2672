#pragma once
#include "external/HalcyraControl.h"

/** Grouped messages that set the reverberator, from the inlet. They validate their atoms and pass valid ones to the
    gate. Any thread. */
void halcyra_control_direct (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_room (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_early (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_cluster (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_reverb (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);
void halcyra_control_roomsize (t_halcyra_control* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** Sends every parameter and position from the left outlet. */
void halcyra_control_bang (t_halcyra_control* x);
/** Resets filters and time structure to their defaults. */
void halcyra_control_reset (t_halcyra_control* x);
