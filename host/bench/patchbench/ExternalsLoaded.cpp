#include "host/bench/patchbench/Externals.h"
#include <filesystem>
#include <windows.h>

namespace
{
std::filesystem::path folderOfThisProgram()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW (nullptr, path, MAX_PATH);
    return std::filesystem::path (path).parent_path();
}
}

bench::Entry findExternal (const std::string& className)
{
    const auto file = std::filesystem::u8path (className + ".mxe64");
    for (const auto& folder :
         { folderOfThisProgram(), folderOfThisProgram() / "extensions", std::filesystem::current_path() }) {
        // The file stays loaded: threads and windows of the external may point into it until the process ends.
        if (const auto module = LoadLibraryW ((folder / file).c_str()))
            for (const auto* name : { "ext_main", "main" })
                if (const auto entry = GetProcAddress (module, name))
                    return reinterpret_cast<bench::Entry> (reinterpret_cast<void (*)()> (entry));
    }
    return nullptr;
}
