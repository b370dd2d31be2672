#pragma once
#include "host/bench/Bench.h"
#include <string>

/** The entry point of the external that brings a class, or null if there is none. On Linux the program is linked
    with what it can load; on Windows the file CLASS.mxe64 is looked for, as Max does. */
bench::Entry findExternal (const std::string& className);
