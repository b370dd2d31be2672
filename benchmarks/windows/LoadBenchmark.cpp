#include "host/bench/Bench.h"
#include <cstdio>
#include <filesystem>
#include <windows.h>

/** What an external costs its host when the first box of its class is created. An external stays loaded for the
    process, so each run measures once: ./load repeats it and takes the medians. The arguments name Windows libraries
    that the external needs: a host already has these and a window, so they are measured separately. */

namespace
{
double now()
{
    LARGE_INTEGER count, perSecond;
    QueryPerformanceCounter (&count);
    QueryPerformanceFrequency (&perSecond);
    return 1000.0 * static_cast<double> (count.QuadPart) / static_cast<double> (perSecond.QuadPart);
}

/** Duration of one step in milliseconds. */
template <typename Step>
double timed (Step step)
{
    const auto start = now();
    step();
    return now() - start;
}

bench::Entry entryOf (HMODULE module)
{
    return reinterpret_cast<bench::Entry> (reinterpret_cast<void (*)()> (GetProcAddress (module, "ext_main")));
}
}

int main (int argc, char** argv)
{
    const auto folder = std::filesystem::absolute (argv[0]).parent_path();
    const auto system = timed ([&] {
        for (int i = 1; i < argc; ++i)
            LoadLibraryA (argv[i]);
        CreateWindowW (L"STATIC", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    });
    std::printf ("Windows load %.3f\n", system);

    bench::Bench bench;
    for (const auto* name : { "empty", "halcyra~.control" }) {
        HMODULE module = nullptr;
        const auto file = folder / (std::string (name) + ".mxe64");
        const auto load = timed ([&] { module = LoadLibraryW (file.c_str()); });
        if (module == nullptr)
            return 1;
        const auto enter = timed ([&] { bench.load (entryOf (module)); });
        std::printf ("%s load %.3f\n%s main %.3f\n", name, load, name, enter);
    }
    bench::Box* box = nullptr;
    const auto make = timed ([&] {
        box = bench.make ("first", "halcyra~.control");
        bench.settle();
    });
    std::printf ("halcyra~.control object %.3f\n", make);
    return box != nullptr ? 0 : 1;
}
