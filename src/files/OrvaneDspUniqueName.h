#pragma once
#include "text/OrvaneDspString.h"

#include <functional>

namespace qel
{

/** How a number is appended to a name already in use: "take(2)" or "take2". */
struct UniqueName
{
    bool parentheses = false;
    /** For bases that end with a digit, where a bare number would merge with it. */
    bool parenthesesAfterDigit = false;
};

/** base + suffix if it is free; otherwise with the first free number in between, counting from 2 or from the number
    in parentheses at the end of the base. */
[[nodiscard]] String uniqueName (const String& base, const String& suffix, UniqueName style,
                                 const std::function<bool (const String&)>& isTaken);

}
