#pragma once
#include "text/OrvaneDspString.h"

namespace qel
{

/** What a path's text means, for one separator. Text alone: nothing here touches a disk. Any thread.
    With '\\' there are drives ("C:") and shares ("\\\\server"), and "/" is taken for a separator too;
    with '/' there are neither, and ":" and "\\" are characters like any other. */
class PathRules
{
public:
    explicit constexpr PathRules (char separatorToUse) noexcept : separator (separatorToUse) {}

    /** The full path that a user's text names, seen from a folder; empty for an empty text. White space at the end
        and trailing separators go. */
    [[nodiscard]] String absolute (const String& text, const String& currentFolder) const;

    /** What stands before the last separator; the root for what stands in it; the text itself without separator. */
    [[nodiscard]] String parent (const String& path) const;

    /** What stands behind the last separator. */
    [[nodiscard]] String fileName (const String& path) const;

    /** From the name's last "." to the end, the point included; or empty. */
    [[nodiscard]] String extension (const String& path) const;

    /** The name up to its last ".". */
    [[nodiscard]] String nameWithoutExtension (const String& path) const;

    /** Walks a relative path from a folder: "." stays, ".." goes up. A path that stands alone is the answer itself. */
    [[nodiscard]] String joined (const String& folder, const String& relative) const;

private:
    [[nodiscard]] bool hasDrives() const noexcept { return separator == '\\'; }
    [[nodiscard]] std::string withOwnSeparators (const String& text) const;
    [[nodiscard]] bool standsAlone (const std::string& path) const noexcept;

    char separator;
};

}
