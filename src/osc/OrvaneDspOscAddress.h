#pragma once
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

namespace qel
{

/** An address such as "/source/1/aed", or a pattern such as "/source/[1-4]/{aed,xyz}". Always begins with "/", which is
    prepended if missing; empty parts ("//", a trailing "/") are dropped. Only the characters 32 to 126 are allowed. */
class OscAddress
{
public:
    enum class Kind
    {
        pattern, ///< may contain wildcards; rejects " " and "#"
        literal  ///< rejects " " "#" "*" "," "?" "[" "]" "{" "}"
    };

    /** The root, "/". */
    OscAddress() = default;
    /** Throws "OSC format error: ..." for a character that its kind does not allow. */
    explicit OscAddress (const String& address, Kind kind = Kind::pattern);

    [[nodiscard]] const Vector<String>& parts() const noexcept { return names; }
    [[nodiscard]] const String& text() const noexcept { return whole; }
    [[nodiscard]] bool hasWildcards() const noexcept { return wild; }

    /** Compares the two part by part. A side with wildcards is the pattern; if both have wildcards, the other one is
        the pattern. */
    [[nodiscard]] bool matches (const OscAddress& other) const;
    /** Matches only the leading parts. Without wildcards the shorter side decides how many, so "/a" also starts with
        "/a/b"; a pattern must not have more parts than the address it is matched against. */
    [[nodiscard]] bool startsWith (const OscAddress& other) const;

private:
    Vector<String> names;
    String whole = "/";
    bool wild = false;
};

}
