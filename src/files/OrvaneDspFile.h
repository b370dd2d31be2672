#pragma once
#include "files/OrvaneDspUniqueName.h"
#include "text/OrvaneDspString.h"

#include <cstdint>

namespace qel
{

/** A file or folder by its full path, there or not. Built of any text, it is absolute and has no separator at its
    end but a root's own. Only createFolder raises; all else fails with false or an empty value. Any thread. */
class File
{
public:
    File() = default;
    /** A relative path is seen from the current folder, "/" is a separator everywhere, and white space at the end
        is dropped. Empty text makes an empty file. */
    explicit File (const String& text);

    [[nodiscard]] static File currentFolder();
    /** HOME, or the home drive and path, or the current folder. */
    [[nodiscard]] static File homeFolder();

    [[nodiscard]] const String& path() const noexcept { return fullPath; }
    [[nodiscard]] bool empty() const noexcept { return fullPath.empty(); }

    /** A root is its own parent. */
    [[nodiscard]] File parent() const;
    [[nodiscard]] String fileName() const;
    /** With its point; empty if there is none. */
    [[nodiscard]] String extension() const;
    [[nodiscard]] String nameWithoutExtension() const;
    /** A relative path from this folder; a full path stands alone. */
    [[nodiscard]] File child (const String& relative) const;
    /** A relative path from this file's folder. */
    [[nodiscard]] File sibling (const String& relative) const;
    /** A file of this folder that is not there yet, named base + suffix with a number between if need be. */
    [[nodiscard]] File uniqueChild (const String& base, const String& suffix, UniqueName style) const;

    [[nodiscard]] bool exists() const;
    [[nodiscard]] bool existsAsFile() const;
    [[nodiscard]] bool isFolder() const;

    /** True when nothing is there afterwards. A folder goes only if it is empty. */
    bool remove() const;
    /** Up to five tries, 50 ms apart. */
    bool removeWithRetry() const;
    /** Makes the folder and those above it; true if it is there already. Raises "Cannot create directory " and the
        quoted path when there is nothing to make it in. */
    bool createFolder() const;
    /** Takes the place of whatever stands at the target. A file replaces a file in one step. */
    bool moveTo (const File& target) const;

    /** In bytes; 0 for what can't be opened. */
    [[nodiscard]] std::uint64_t size() const;
    /** All its bytes; empty if it can't be opened or is no ordinary file. */
    [[nodiscard]] String readAll() const;

    friend bool operator== (const File& a, const File& b) noexcept { return a.fullPath == b.fullPath; }
    friend bool operator!= (const File& a, const File& b) noexcept { return ! (a == b); }

private:
    String fullPath;
};

}
