#pragma once
#include "text/OrvaneDspString.h"

namespace qel
{

/** Path syntax for one separator. Works on text alone and never touches the disk. Any thread.
    With '\\' there are drives ("C:") and shares ("\\\\server"), and "/" is a separator too;
    with '/' there are neither, and ":" and "\\" are ordinary characters. */
class PathRules
{
public:
    explicit constexpr PathRules (char separatorToUse) noexcept : separator (separatorToUse) {}

    /** The absolute path for the user's text, resolved against a folder; empty for empty text. Drops trailing white
        space and separators. */
    [[nodiscard]] String absolute (const String& text, const String& currentFolder) const;

    /** Everything before the last separator; the root for its direct entries; the text itself without separator. */
    [[nodiscard]] String parent (const String& path) const;

    /** Everything after the last separator. */
    [[nodiscard]] String fileName (const String& path) const;

    /** From the name's last "." to the end, dot included; empty if there is none. */
    [[nodiscard]] String extension (const String& path) const;

    /** The name up to its last ".". */
    [[nodiscard]] String nameWithoutExtension (const String& path) const;

    /** Resolves a relative path against a folder: "." stays, ".." goes up. An absolute path is returned as is. */
    [[nodiscard]] String joined (const String& folder, const String& relative) const;

private:
    [[nodiscard]] bool hasDrives() const noexcept { return separator == '\\'; }
    [[nodiscard]] std::string withOwnSeparators (const String& text) const;
    [[nodiscard]] bool standsAlone (const std::string& path) const noexcept;

    char separator;
};

}
