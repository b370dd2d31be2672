#include "host/bench/patchbench/Script.h"
#include <filesystem>

namespace patchbench
{

std::string complaintAbout (const std::string& file)
{
    std::error_code ignored;
    const auto path = std::filesystem::u8path (file);
    if (std::filesystem::is_directory (path, ignored))
        return "is a folder";
    for (const auto* ending : { ".maxpat", ".maxhelp", ".amxd", ".pd" })
        if (path.extension() == ending)
            return std::string ("is a patcher (") + ending + "); scripts are text with one command a line, see help";
    return {};
}

std::string removeByteOrderMark (std::string& line)
{
    const std::string utf8 = "\xEF\xBB\xBF";
    if (line.compare (0, utf8.size(), utf8) == 0) {
        line.erase (0, utf8.size());
        return "the file begins with a byte order mark; save it as UTF-8 without one";
    }
    for (const std::string utf16 : { "\xFF\xFE", "\xFE\xFF" })
        if (line.compare (0, utf16.size(), utf16) == 0)
            return "the file is in UTF-16; save it as UTF-8";
    return {};
}

bool isText (const std::string& line) { return line.find ('\0') == std::string::npos; }

std::string echoOf (const std::string& line)
{
    const auto end = line.find_last_not_of ('\r');
    const auto text = end == std::string::npos ? std::string() : line.substr (0, end + 1);
    const auto first = text.find_first_not_of (" \t");
    return first == std::string::npos || text[first] == '#' ? text : "> " + text;
}

}
