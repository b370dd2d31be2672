#pragma once
#include "host/bench/Bench.h"
#include <string>
#include <vector>

namespace patchbench
{

/** The entry point of the external that brings a class, or null if there is none. On Linux the program is linked
    with what it can load; on Windows the file CLASS.mxe64 is looked for, as Max does. */
bench::Entry findExternal (const std::string& className);

/** The classes that findExternal would find. */
std::vector<std::string> namesOfExternals();

/** How the messages of those classes are written: the text of package/messages.txt. */
const char* messageTable();

}
