#pragma once
#include "host/bench/patchbench/Program.h"

namespace patchbench
{

/** The driver for windows at this place; `automatic` is the display if one can be opened, else memory. */
std::unique_ptr<bench::WindowDriver> makeWindows (patchbench::WindowPlace place);

}
