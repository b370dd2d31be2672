#pragma once
#include "host/api/MaxApi.h"

#include <iosfwd>

/** `exportdict` and `exportdict FILE` write all visible attributes to a JSON file. Main thread. */
void orvanemax_exportdict (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

namespace orvanemax
{

/** Writes a dictionary as JSON, one key per line, in insertion order. Logs problems. */
void writeJson (void* object, t_dictionary* dictionary, std::ostream& out);

}
