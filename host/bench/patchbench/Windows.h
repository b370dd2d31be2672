#pragma once
#include "host/bench/patchbench/Program.h"

namespace patchbench
{

/** The driver for windows at this place; `automatic` uses the display if one can be opened, otherwise memory. */
std::unique_ptr<bench::WindowDriver> makeWindows (patchbench::WindowPlace place);

}
