#include "files/OrvaneDspPathRules.h"

#include <algorithm>
#include <string_view>

namespace qel
{

namespace
{

std::string parentOf (const std::string& path, char separator)
{
    const auto last = path.rfind (separator);
    if (last == std::string::npos)
        return path;
    return last == 0 ? std::string (1, separator) : path.substr (0, last);
}

void appendStep (std::string& folder, std::string_view step, char separator)
{
    if (! folder.empty() && folder.back() != separator)
        folder += separator;
    folder += step;
}

}

std::string PathRules::withOwnSeparators (const String& text) const
{
    auto path = text.str();
    if (hasDrives())
        std::replace (path.begin(), path.end(), '/', separator);
    return path;
}

bool PathRules::standsAlone (const std::string& path) const noexcept
{
    if (path.empty())
        return false;
    return path.front() == separator || (hasDrives() && path.size() > 1 && path[1] == ':');
}

String PathRules::absolute (const String& text, const String& currentFolder) const
{
    if (text.empty())
        return {};

    auto path = withOwnSeparators (text.trimmedEnd());
    const bool isRooted = ! path.empty() && path.front() == separator;
    const bool isShare = isRooted && hasDrives() && path.size() > 1 && path[1] == separator;
    const bool namesDrive = hasDrives() && path.find (':') != std::string::npos;
    if (! isRooted && ! namesDrive)
        path = joined (currentFolder, path).str();
    else if (isRooted && hasDrives() && ! isShare)
        path.insert (0, currentFolder.str().substr (0, 2));

    while (path.size() > 1 && path.back() == separator)
        path.pop_back();
    return path;
}

String PathRules::parent (const String& path) const { return parentOf (path.str(), separator); }

String PathRules::fileName (const String& path) const
{
    return path.str().substr (path.str().rfind (separator) + 1); // npos + 1 is 0: without a separator the whole path
}

String PathRules::extension (const String& path) const
{
    const auto name = fileName (path).str();
    const auto point = name.rfind ('.');
    return point == std::string::npos ? std::string() : name.substr (point);
}

String PathRules::nameWithoutExtension (const String& path) const
{
    const auto name = fileName (path).str();
    return name.substr (0, name.rfind ('.'));
}

String PathRules::joined (const String& folder, const String& relative) const
{
    const auto steps = withOwnSeparators (relative);
    if (standsAlone (steps))
        return steps;

    auto path = folder.str();
    for (std::size_t start = 0; start <= steps.size();) {
        const auto end = std::min (steps.find (separator, start), steps.size());
        const auto step = std::string_view (steps).substr (start, end - start);
        if (step == "..")
            path = parentOf (path, separator);
        else if (! step.empty() && step != ".")
            appendStep (path, step, separator);
        start = end + 1;
    }
    return path;
}

}
