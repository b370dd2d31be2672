#include "text/OrvaneDspStringVector.h"

namespace qel
{

const Vector<String>& emptyStrings()
{
    static const Vector<String> shared;
    return shared;
}

Vector<String> split (const String& text, char separator, bool keepEmptyParts)
{
    if (text.empty())
        return emptyStrings();

    Vector<String> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const auto end = std::min (text.str().find (separator, start), text.size());
        if (keepEmptyParts || end > start)
            parts.push_back (text.substr (start, end - start));
        start = end + 1;
    }
    return parts;
}

std::ptrdiff_t indexOf (const Vector<String>& texts, const String& wanted, bool ignoreCase)
{
    const String lowerWanted = wanted.toLowerCase();
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (ignoreCase ? texts[i].toLowerCase() == lowerWanted : texts[i] == wanted)
            return static_cast<std::ptrdiff_t> (i);
    return -1;
}

bool isContained (const Vector<String>& texts, const String& wanted, bool ignoreCase)
{
    return indexOf (texts, wanted, ignoreCase) >= 0;
}

}
