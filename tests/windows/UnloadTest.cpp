#include "host/bench/Bench.h"
#include <cstdio>
#include <filesystem>
#include <windows.h>

/** A host that unloads the external after its entry has run: JUCE's hidden window, timers and hooks point into it, so
    it must stay loaded and keep working. Exits with 0 if it does. */
int main (int, char** argv)
{
    const auto file = std::filesystem::absolute (argv[0]).parent_path() / "halcyra~.control.mxe64";
    const auto module = LoadLibraryW (file.c_str());
    const auto entry = module != nullptr ? GetProcAddress (module, "ext_main") : nullptr;
    if (entry == nullptr || GetProcAddress (module, "main") != entry) // hosts look up either name
        return 2;
    bench::Bench bench;
    bench.load (reinterpret_cast<bench::Entry> (reinterpret_cast<void (*)()> (entry)));
    FreeLibrary (module);
    if (GetModuleHandleW (file.filename().c_str()) == nullptr) {
        std::puts ("the external left its host");
        return 1;
    }
    return bench.make ("room", "halcyra~.control") != nullptr ? 0 : 1;
}
