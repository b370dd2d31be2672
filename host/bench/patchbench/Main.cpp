#include "host/bench/patchbench/Externals.h"
#include "host/bench/patchbench/Program.h"
#include "host/bench/patchbench/Windows.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#endif

int main (int argc, char** argv)
{
#ifdef _WIN32
    for (auto* stream : { stdout, stderr })
        _setmode (_fileno (stream), _O_BINARY); // same line ends on every platform
#endif
    return patchbench::run (argc, argv,
                            { { patchbench::findExternal, patchbench::namesOfExternals,
                                patchbench::readMessageForms (patchbench::messageTable()) },
                              patchbench::makeWindows });
}
