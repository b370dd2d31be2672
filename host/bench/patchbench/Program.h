#pragma once
#include "host/bench/patchbench/Session.h"
#include <memory>

namespace patchbench
{

enum class WindowPlace
{
    automatic,
    native,
    offscreen
};

/** The parts of the program: the externals it can load and the windows it can show. */
struct Parts
{
    Session::Externals externals;
    std::function<std::unique_ptr<bench::WindowDriver> (WindowPlace)> makeWindows; // empty: none
};

/** Runs the program. Returns its exit status: 0, 1 if a command failed, 2 for invalid options. */
int run (int argc, const char* const* argv, const Parts& parts);

}
