#pragma once
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

namespace qel
{

/** A shared empty list. */
[[nodiscard]] const Vector<String>& emptyStrings();

/** The parts between separators, in order. Empty text has no parts. */
[[nodiscard]] Vector<String> split (const String& text, char separator, bool keepEmptyParts);

/** Index of the first match, or -1. Case is ignored for ASCII letters only. */
[[nodiscard]] std::ptrdiff_t indexOf (const Vector<String>& texts, const String& wanted, bool ignoreCase = false);
[[nodiscard]] bool isContained (const Vector<String>& texts, const String& wanted, bool ignoreCase = false);

}
