#pragma once
#include "host/api/MaxApi.h"

#include <iosfwd>

/** `exportdict` and `exportdict FILE` write all visible attributes to a JSON file. Main thread. */
void orvanemax_exportdict (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

namespace orvanemax
{

/** A dictionary as JSON, one key a line, in the order in which the keys were added. Problems are told. */
void writeJson (void* object, t_dictionary* dictionary, std::ostream& out);

}
