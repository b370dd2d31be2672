#include "host/pd/FileMessages.h"
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iterator>

namespace pdhost
{

namespace
{
constexpr FileMessage fileMessages[] = {
    { "readsnapshot", false },
    { "writesnapshot", true },
    { "exportdict", true },
};
}

const FileMessage* fileMessage (const char* selector)
{
    const auto* found = std::find_if (std::begin (fileMessages), std::end (fileMessages),
                                      [=] (const auto& row) { return std::strcmp (row.selector, selector) == 0; });
    return found == std::end (fileMessages) ? nullptr : found;
}

std::string pathIn (const std::string& folder, const std::string& name)
{
    if (folder.empty() || name == "none")
        return name;
    return (std::filesystem::u8path (folder) / std::filesystem::u8path (name)).u8string();
}

}
