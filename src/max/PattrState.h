#pragma once
#include "host/api/MaxApi.h"

/** The state of an object as a bare list of values, in the alphabetical order of its visible attributes. Names are not
    in the list, so it fits only an object whose arrays have the same sizes. Main thread. */

/** Gives the values. With *ac and *av zero the memory is new and the caller's to free; else it is used as it is. */
t_max_err orvanemax_getvalueof (void* x, t_clong* ac, t_atom** av);

/** Sets the values; a list of another length changes nothing. */
t_max_err orvanemax_setvalueof (void* x, t_clong ac, t_atom* av);

/** Writes the object, its class and its values into the preset that is being stored, if any. */
void orvanemax_preset (void* x);

/** What a preset sends back: the values. */
void orvanemax_recallpreset (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
