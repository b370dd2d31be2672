#pragma once
#include "host/bench/Bench.h"
#include <string>
#include <vector>

namespace patchbench
{

/** The entry point of the external for a class, or null. On Linux externals are linked in; on Windows it loads
    CLASS.mxe64, as Max does. */
bench::Entry findExternal (const std::string& className);

/** The classes that findExternal would find. */
std::vector<std::string> namesOfExternals();

/** The syntax of those classes' messages: the text of package/messages.txt. */
const char* messageTable();

}
