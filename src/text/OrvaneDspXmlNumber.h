#pragma once
#include "text/OrvaneDspString.h"

namespace qel::xml
{

/** The shortest decimal that is read back as the same number, for a number of single precision also when it is
    narrowed again. The point is "." in any locale. */
[[nodiscard]] String fromDouble (double value);

/** The number that a text begins with, leading white space aside; the fallback if it begins with none. What a double
    can't hold is an infinity or 0. */
[[nodiscard]] double toDouble (const String& text, double fallback) noexcept;

/** As above, with the nearest int for what an int can't hold. */
[[nodiscard]] int toInt (const String& text, int fallback) noexcept;

}
