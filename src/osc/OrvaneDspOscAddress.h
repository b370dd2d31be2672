#pragma once
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

namespace qel
{

/** An address such as "/source/1/aed", or a pattern of addresses such as "/source/[1-4]/{aed,xyz}".
    It always begins with "/", which is put in front of a text without one; empty parts ("//", a "/" at the end)
    are dropped. Only the characters 32 to 126 are allowed. */
class OscAddress
{
public:
    enum class Kind
    {
        pattern, ///< may hold wildcards; refuses " " and "#"
        literal  ///< refuses " " "#" "*" "," "?" "[" "]" "{" "}"
    };

    /** The root, "/". */
    OscAddress() = default;
    /** Raises "OSC format error: ..." for a character that its kind does not allow. */
    explicit OscAddress (const String& address, Kind kind = Kind::pattern);

    [[nodiscard]] const Vector<String>& parts() const noexcept { return names; }
    [[nodiscard]] const String& text() const noexcept { return whole; }
    [[nodiscard]] bool hasWildcards() const noexcept { return wild; }

    /** Whether the two name the same thing, part by part. A side with wildcards is the pattern of the other; with
        wildcards on both sides, the other is the pattern. */
    [[nodiscard]] bool matches (const OscAddress& other) const;
    /** The same over the first parts only. Without wildcards the shorter side decides how many, so that "/a" starts
        with "/a/b" too; a pattern must not have more parts than what it is held against. */
    [[nodiscard]] bool startsWith (const OscAddress& other) const;

private:
    Vector<String> names;
    String whole = "/";
    bool wild = false;
};

}
