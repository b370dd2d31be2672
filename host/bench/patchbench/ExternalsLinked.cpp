#include "host/bench/patchbench/Externals.h"

namespace patchbench
{

MAX_EXPORT t_clong ext_main (void*);

bench::Entry findExternal (const std::string& className)
{
    return className == "halcyra~.control" ? ext_main : nullptr;
}

std::vector<std::string> namesOfExternals() { return { "halcyra~.control" }; }

}
