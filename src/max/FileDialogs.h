#pragma once
#include "host/api/MaxApi.h"

#include <string>

namespace orvanemax
{

/** Asks for a file to read; empty when the dialog was cancelled. Main thread, like the one below. */
[[nodiscard]] std::string askForFileToOpen();

/** Asks for a file to write, with a name to begin with. */
[[nodiscard]] std::string askForFileToSave (const char* defaultName, t_fourcc type);

/** Finds a file along the host's search path; empty if there is none of that name. */
[[nodiscard]] std::string locateFile (const char* name);

}
