#include "FontFolders.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>

namespace
{

namespace fs = std::filesystem;

/** Prefixes of these families' file names, lower case, letters only. */
constexpr const char* families[] = {
    "lucidagrande", "arial", "verdana", "vera", "luxis", "liberationsans", "dejavusans"
};

constexpr const char* extensions[] = { "ttf", "otf", "pfb", "pcf" };

std::string lettersOf (const std::string& text)
{
    std::string letters;
    for (const char c : text)
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
            letters += static_cast<char> (c | 0x20);
    return letters;
}

bool isOurs (const fs::path& file)
{
    const auto name = lettersOf (file.stem().string());
    const auto extension = lettersOf (file.extension().string());
    return std::count (std::begin (extensions), std::end (extensions), extension) > 0 &&
           std::any_of (std::begin (families), std::end (families),
                        [&] (const std::string& family) { return name.compare (0, family.size(), family) == 0; });
}

std::string environment (const char* name)
{
    const auto* const value = std::getenv (name);
    return value == nullptr ? "" : value;
}

std::vector<std::string> rootsOfThisMachine()
{
    const auto home = environment ("HOME");
    auto data = environment ("XDG_DATA_HOME");
    if (data.empty())
        data = home + "/.local/share";
    return { "/usr/share/fonts", "/usr/local/share/fonts", home + "/.fonts", data + "/fonts" };
}

}

std::string foldersOfOurFonts (const std::vector<std::string>& roots)
{
    std::set<std::string> folders;
    for (const auto& root : roots) {
        std::error_code fault;
        fs::recursive_directory_iterator entry (root, fs::directory_options::skip_permission_denied, fault);
        for (; ! fault && entry != fs::recursive_directory_iterator(); entry.increment (fault))
            if (isOurs (entry->path()))
                folders.insert (entry->path().parent_path().string());
    }
    std::string joined;
    for (const auto& folder : folders)
        joined += folder + ";";
    return joined;
}

const char* fontFoldersFor (const char* variable)
{
    const auto* const wanted = std::getenv (variable);
    static const auto ours = foldersOfOurFonts (rootsOfThisMachine());
    return wanted != nullptr || ours.empty() ? wanted : ours.c_str();
}
