#pragma once
#include "files/OrvaneDspUniqueName.h"
#include "text/OrvaneDspString.h"

#include <cstdint>

namespace qel
{

/** A file or folder by its full path, existing or not. The path is always absolute, with no trailing separator except
    a root's own. Only createFolder throws; all else fails with false or an empty value. Any thread. */
class File
{
public:
    File() = default;
    /** Relative paths are resolved against the current folder; "/" is a separator on every platform; trailing white
        space is dropped. Empty text makes an empty file. */
    explicit File (const String& text);

    [[nodiscard]] static File currentFolder();
    /** HOME, or the home drive and path, or the current folder. */
    [[nodiscard]] static File homeFolder();

    [[nodiscard]] const String& path() const noexcept { return fullPath; }
    [[nodiscard]] bool empty() const noexcept { return fullPath.empty(); }

    /** A root is its own parent. */
    [[nodiscard]] File parent() const;
    [[nodiscard]] String fileName() const;
    /** Includes the dot; empty if there is none. */
    [[nodiscard]] String extension() const;
    [[nodiscard]] String nameWithoutExtension() const;
    /** Resolves a relative path against this folder; an absolute path is used as is. */
    [[nodiscard]] File child (const String& relative) const;
    /** Resolves a relative path against this file's folder. */
    [[nodiscard]] File sibling (const String& relative) const;
    /** A file in this folder that does not exist yet: base + suffix, with a number in between if needed. */
    [[nodiscard]] File uniqueChild (const String& base, const String& suffix, UniqueName style) const;

    [[nodiscard]] bool exists() const;
    [[nodiscard]] bool existsAsFile() const;
    [[nodiscard]] bool isFolder() const;

    /** True if nothing exists at the path afterwards. Folders are removed only if empty. */
    bool remove() const;
    /** Tries up to five times, 50 ms apart. */
    bool removeWithRetry() const;
    /** Creates the folder and its parents; true if it already exists. Throws "Cannot create directory " and the
        quoted path if there is no place to create it. */
    bool createFolder() const;
    /** Replaces whatever exists at the target; a file replaces a file atomically. */
    bool moveTo (const File& target) const;

    /** In bytes; 0 if the file can't be opened. */
    [[nodiscard]] std::uint64_t size() const;
    /** The whole contents; empty if the file can't be opened or is not a regular file. */
    [[nodiscard]] String readAll() const;

    friend bool operator== (const File& a, const File& b) noexcept { return a.fullPath == b.fullPath; }
    friend bool operator!= (const File& a, const File& b) noexcept { return ! (a == b); }

private:
    String fullPath;
};

}
