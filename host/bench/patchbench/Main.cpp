#include "host/bench/patchbench/Externals.h"
#include "host/bench/patchbench/Program.h"
#include "host/bench/patchbench/Windows.h"

int main (int argc, char** argv) { return patchbench::run (argc, argv, { findExternal, makeWindows }); }
