#pragma once
#include "host/api/MaxApi.h"

/** Handlers for the attribute messages that every object of the family accepts. They access the object only through its
    attributes. Main thread. */

/** `dump` sends all visible attributes as one list from the dump outlet, `dump NAME` a single one as a message. */
void orvanemax_dump (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** `postattributes` and `postattributes NAME` log values to the Max console. */
void orvanemax_postattributes (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** `reset` and `reset NAME` set attributes to their defaults, except those excluded from a reset. */
void orvanemax_reset (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** Posts the object's version. */
void orvanemax_version (void* x);

namespace orvanemax
{

/** With force, resets also excluded attributes; with warn, logs those without a default. */
void resetAttributeToDefault (void* object, t_symbol* name, bool force, bool warn);

/** The outlet under the host's name for it; null, and logged, if there is none. */
[[nodiscard]] t_outlet* dumpOutlet (void* object);

}
