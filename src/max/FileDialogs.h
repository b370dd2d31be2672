#pragma once
#include "host/api/MaxApi.h"

#include <string>

namespace orvanemax
{

/** Asks for a file to read; empty if the dialog was cancelled. Main thread, as below. */
[[nodiscard]] std::string askForFileToOpen();

/** Asks for a file to write, with a suggested name. */
[[nodiscard]] std::string askForFileToSave (const char* defaultName, t_fourcc type);

/** Searches the host's search path for a file; empty if it is not found. */
[[nodiscard]] std::string locateFile (const char* name);

}
