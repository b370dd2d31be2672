#include "max/FileDialogs.h"

#include <array>

namespace orvanemax
{
namespace
{

/** The dialogs need at least MAX_FILENAME_CHARS; more is safer. */
using NameBuffer = std::array<char, MAX_PATH_CHARS>;

/** The full path of a file that may not exist yet. */
std::string pathOf (short folder, const NameBuffer& name)
{
    NameBuffer path{};
    return path_topotentialname (folder, name.data(), path.data(), 0) == 0 ? path.data() : std::string();
}

}

std::string askForFileToOpen()
{
    NameBuffer name{};
    short folder = 0;
    t_fourcc type = 0;
    return open_dialog (name.data(), &folder, &type, nullptr, 0) == 0 ? pathOf (folder, name) : std::string();
}

std::string askForFileToSave (const char* defaultName, t_fourcc type)
{
    NameBuffer name{};
    strncpy_zero (name.data(), defaultName, static_cast<t_clong> (name.size()));
    short folder = 0;
    t_fourcc chosen = 0;
    const auto answer = saveasdialog_extended (name.data(), &folder, &chosen, &type, 1);
    return answer == 0 ? pathOf (folder, name) : std::string();
}

std::string locateFile (const char* name)
{
    NameBuffer buffer{}, path{};
    strncpy_zero (buffer.data(), name, static_cast<t_clong> (buffer.size())); // the host writes into it
    short folder = 0;
    t_fourcc type = 0;
    if (locatefile_extended (buffer.data(), &folder, &type, nullptr, 0) != 0)
        return {};
    return path_topathname (folder, buffer.data(), path.data()) == 0 ? path.data() : std::string();
}

}
