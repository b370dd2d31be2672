#pragma once
#include "text/OrvaneDspString.h"

namespace qel
{

/** Whether a pattern describes the whole of a text, by characters of UTF-8 (a byte that is none stands for itself).
        *        any characters, none included; a "*" that meets the text's end must be the pattern's last character
        ?        one character
        [a-z0]   one character of a class, [!a-z0] one outside it; "[]" and "[!]" stand for nothing at all.
                 "-]" makes "-" a member and leaves the class open: "[a-]]" is "a" or "-"
        {x,y}    one of several texts; "{}" stands for nothing
    A class or set without its end, and a range with no first character or up to "," "{" "}", match nothing.
    The work grows with the product of the two lengths at most. */
[[nodiscard]] bool matchOscPattern (const String& pattern, const String& text);

}
