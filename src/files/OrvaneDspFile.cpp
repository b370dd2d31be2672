#include "files/OrvaneDspFile.h"
#include "common/OrvaneDspException.h"
#include "files/OrvaneDspFileHandle.h"
#include "files/OrvaneDspFileSystem.h"
#include "files/OrvaneDspPathRules.h"
#include "files/OrvaneDspRetry.h"
#include "math/OrvaneDspVector.h"

#include <algorithm>
#include <iterator>

namespace qel
{

namespace
{

constexpr PathRules rules (filesystem::separator);

}

File::File (const String& text) : fullPath (rules.absolute (text, filesystem::currentFolder())) {}

File File::currentFolder() { return File ("."); }

File File::homeFolder()
{
    for (const auto* const name : { "HOME", "home" })
        if (const auto home = filesystem::environment (name); ! home.empty())
            return File (home);

    const auto drive = filesystem::environment ("HOMEDRIVE");
    const auto path = filesystem::environment ("HOMEPATH");
    return drive.empty() || path.empty() ? currentFolder() : File (drive + path);
}

File File::parent() const
{
    File folder;
    folder.fullPath = rules.parent (fullPath); // kept verbatim: a folder's name may end with a space
    return folder;
}

String File::fileName() const { return rules.fileName (fullPath); }
String File::extension() const { return rules.extension (fullPath); }
String File::nameWithoutExtension() const { return rules.nameWithoutExtension (fullPath); }
File File::child (const String& relative) const { return File (rules.joined (fullPath, relative)); }
File File::sibling (const String& relative) const { return parent().child (relative); }

File File::uniqueChild (const String& base, const String& suffix, UniqueName style) const
{
    return child (uniqueName (base, suffix, style, [this] (const String& name) { return child (name).exists(); }));
}

bool File::exists() const { return filesystem::kindOf (fullPath) != filesystem::Kind::nothing; }
bool File::existsAsFile() const { return filesystem::kindOf (fullPath) == filesystem::Kind::file; }
bool File::isFolder() const { return filesystem::kindOf (fullPath) == filesystem::Kind::folder; }

bool File::remove() const
{
    switch (filesystem::kindOf (fullPath)) {
    case filesystem::Kind::nothing:
        return true;
    case filesystem::Kind::folder:
        return filesystem::removeFolder (fullPath);
    case filesystem::Kind::file:
        break;
    }
    return filesystem::removeFile (fullPath);
}

bool File::removeWithRetry() const
{
    return retried (5, 50, [this] { return remove(); });
}

bool File::createFolder() const
{
    if (fullPath.size() > filesystem::longestPath)
        return false;

    Vector<File> missing; // innermost first
    for (File folder (*this); ! folder.isFolder(); folder = folder.parent()) {
        if (folder.parent() == folder)
            throw Exception ("Cannot create directory " + folder.fullPath.quoted(), QEL_HERE);
        missing.push_back (folder);
    }
    return std::all_of (std::make_reverse_iterator (missing.end()), std::make_reverse_iterator (missing.begin()),
                        [] (const File& folder) { return filesystem::makeFolder (folder.fullPath); });
}

bool File::moveTo (const File& target) const
{
    if (*this == target)
        return true;
    if (! exists())
        return false;

    const bool replacesInOneStep = existsAsFile() && ! target.isFolder();
    if (! replacesInOneStep && ! target.remove())
        return false;
    return filesystem::move (fullPath, target.fullPath);
}

std::uint64_t File::size() const
{
    const FileHandle handle (filesystem::openForReading (fullPath));
    return static_cast<std::uint64_t> (std::max<std::int64_t> (handle.size(), 0));
}

String File::readAll() const
{
    FileHandle handle (filesystem::openForReading (fullPath));
    try {
        std::string bytes (static_cast<std::size_t> (std::max<std::int64_t> (handle.size(), 0)), '\0');
        bytes.resize (handle.read (bytes.data(), bytes.size()));
        return bytes;
    } catch (const std::exception&) { // larger than memory
        return {};
    }
}

}
