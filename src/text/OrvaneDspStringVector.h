#pragma once
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

namespace qel
{

/** The shared empty list of texts. */
[[nodiscard]] const Vector<String>& emptyStrings();

/** The parts between separators, in order. An empty text has none. */
[[nodiscard]] Vector<String> split (const String& text, char separator, bool keepEmptyParts);

/** The index of the first match, or -1. Ignoring case compares the letters of ASCII as lower case. */
[[nodiscard]] std::ptrdiff_t indexOf (const Vector<String>& texts, const String& wanted, bool ignoreCase = false);
[[nodiscard]] bool isContained (const Vector<String>& texts, const String& wanted, bool ignoreCase = false);

}
