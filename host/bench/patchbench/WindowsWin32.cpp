#include "host/bench/patchbench/Win32WindowDriver.h"
#include "host/bench/patchbench/Windows.h"

namespace patchbench
{

/** Windows always has a desktop, so there are no windows in memory. */
std::unique_ptr<bench::WindowDriver> makeWindows (patchbench::WindowPlace)
{
    return std::make_unique<Win32WindowDriver>();
}

}
