#pragma once
#include "text/OrvaneDspString.h"

namespace qel
{

/** Whether a pattern matches a whole text, by UTF-8 characters (an invalid byte matches itself).
        *        any characters, or none; a "*" at the end of the text must be the pattern's last character
        ?        one character
        [a-z0]   one character of a class, [!a-z0] one outside it; "[]" and "[!]" match empty text.
                 "-]" makes "-" a member and leaves the class open: "[a-]]" is "a" or "-"
        {x,y}    one of several texts; "{}" matches empty text
    An unterminated class or set, and a range without a first character or up to "," "{" "}", match nothing.
    At most quadratic: the product of the two lengths. */
[[nodiscard]] bool matchOscPattern (const String& pattern, const String& text);

}
