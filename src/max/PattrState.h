#pragma once
#include "host/api/MaxApi.h"

/** The state of an object as a flat list of values, in the alphabetical order of its visible attributes. The list has
    no names, so it fits only an object whose arrays have the same sizes. Main thread. */

/** Returns the values. If *ac and *av are zero, allocates memory for the caller to free; otherwise uses *av as is. */
t_max_err orvanemax_getvalueof (void* x, t_clong* ac, t_atom** av);

/** Sets the values; a list of another length changes nothing. */
t_max_err orvanemax_setvalueof (void* x, t_clong ac, t_atom* av);

/** Stores the object, its class and its values in the preset being written, if any. */
void orvanemax_preset (void* x);

/** Sets the values that a preset sends back. */
void orvanemax_recallpreset (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
