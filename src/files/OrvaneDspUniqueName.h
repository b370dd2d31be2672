#pragma once
#include "text/OrvaneDspString.h"

#include <functional>

namespace qel
{

/** How a number joins a name that is taken: "take(2)" or "take2". */
struct UniqueName
{
    bool parentheses = false;
    /** For a base that ends with a digit itself, where a bare number would run into it. */
    bool parenthesesAfterDigit = false;
};

/** base + suffix if it is free; otherwise with the first free number between them, from 2 up or on from the number
    in parentheses that the base ends with. */
[[nodiscard]] String uniqueName (const String& base, const String& suffix, UniqueName style,
                                 const std::function<bool (const String&)>& isTaken);

}
