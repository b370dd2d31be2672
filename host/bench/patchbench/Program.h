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

/** What a program of this kind is made of: the externals that it can load and the windows that it can show. */
struct Parts
{
    Session::Externals externals;
    std::function<std::unique_ptr<bench::WindowDriver> (WindowPlace)> makeWindows; // empty: none
};

/** The whole program. The result is its exit status: 0, 1 if a command could not be carried out, 2 for unusable
    options. */
int run (int argc, const char* const* argv, const Parts& parts);

}
