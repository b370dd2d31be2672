#pragma once
#include "host/api/MaxApi.h"

/** The messages about attributes that every object of the family answers. They know the object only by its
    attributes. Main thread. */

/** `dump` sends all visible attributes as one list out of the dump outlet, `dump NAME` one as a message. */
void orvanemax_dump (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** `postattributes` and `postattributes NAME` write values to the Max window. */
void orvanemax_postattributes (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** `reset` and `reset NAME` set attributes to their defaults, but those that are not to be reset. */
void orvanemax_reset (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

/** Posts the version of the object. */
void orvanemax_version (void* x);

namespace orvanemax
{

/** With force, also an attribute that is not to be reset; with warn, tells of one that has no default. */
void resetAttributeToDefault (void* object, t_symbol* name, bool force, bool warn);

/** The outlet under the host's name for it; null, and told, if there is none. */
[[nodiscard]] t_outlet* dumpOutlet (void* object);

}
