#include "host/bench/patchbench/Externals.h"

MAX_EXPORT t_clong ext_main (void*);

bench::Entry findExternal (const std::string& className)
{
    return className == "halcyra~.control" ? ext_main : nullptr;
}
