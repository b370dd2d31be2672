#include "host/bench/patchbench/Display.h"
#include <X11/Xlib.h>
#include <cstdlib>

namespace patchbench
{

bool canOpenDisplay()
{
    const auto* name = std::getenv ("DISPLAY");
    if (name == nullptr || *name == 0)
        return false;
    auto* display = XOpenDisplay (nullptr);
    if (display != nullptr)
        XCloseDisplay (display);
    return display != nullptr;
}

}
