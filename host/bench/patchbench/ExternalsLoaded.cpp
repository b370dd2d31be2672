#include "host/bench/patchbench/Externals.h"
#include <array>
#include <filesystem>
#include <windows.h>

namespace patchbench
{

namespace
{
std::filesystem::path folderOfThisProgram()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW (nullptr, path, MAX_PATH);
    return std::filesystem::path (path).parent_path();
}

constexpr auto* fileEnding = ".mxe64";

std::array<std::filesystem::path, 3> folders()
{
    return { folderOfThisProgram(), folderOfThisProgram() / "extensions", std::filesystem::current_path() };
}
}

bench::Entry findExternal (const std::string& className)
{
    const auto file = std::filesystem::u8path (className + fileEnding);
    for (const auto& folder : folders()) {
        // Never unloaded: the external's threads and windows may use its code until the process ends.
        if (const auto module = LoadLibraryW ((folder / file).c_str()))
            for (const auto* name : { "ext_main", "main" })
                if (const auto entry = GetProcAddress (module, name))
                    return reinterpret_cast<bench::Entry> (reinterpret_cast<void (*)()> (entry));
    }
    return nullptr;
}

std::vector<std::string> namesOfExternals()
{
    std::vector<std::string> names;
    for (const auto& folder : folders()) {
        std::error_code ignored;
        for (const auto& entry : std::filesystem::directory_iterator (folder, ignored))
            if (entry.path().extension() == fileEnding)
                names.push_back (entry.path().stem().u8string());
    }
    return names;
}

}
