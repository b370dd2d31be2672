#include "osc/OrvaneDspOscAddress.h"
#include "osc/OrvaneDspOscPattern.h"

#include <algorithm>
#include <string_view>

namespace qel
{

namespace
{

bool isAllowed (char character, const char* refused)
{
    return character >= 32 && character <= 126 && std::string_view (refused).find (character) == std::string_view::npos;
}

bool partsMatch (const Vector<String>& patterns, const Vector<String>& texts)
{
    return std::equal (patterns.begin(), patterns.end(), texts.begin(), matchOscPattern);
}

}

OscAddress::OscAddress (const String& address, Kind kind)
{
    const auto& characters = address.str();
    const char* const refused = kind == Kind::literal ? " #*,?[]{}" : " #";
    if (! std::all_of (characters.begin(), characters.end(), [=] (char c) { return isAllowed (c, refused); }))
        throw Exception (String ("OSC format error: encountered characters not allowed in address string : ") + address,
                         QEL_HERE);

    wild = characters.find_first_of ("*?{}[]") != std::string::npos;
    for (std::size_t begin = 0; begin < characters.size();) {
        const auto end = std::min (characters.find ('/', begin), characters.size());
        if (end > begin)
            names.push_back (characters.substr (begin, end - begin));
        begin = end + 1;
    }

    std::string joined;
    for (const auto& name : names)
        joined += "/" + name.str();
    if (! names.empty())
        whole = joined;
}

bool OscAddress::matches (const OscAddress& other) const
{
    if (! wild && ! other.wild)
        return whole == other.whole;
    if (names.size() != other.names.size())
        return false;
    return other.wild ? partsMatch (other.names, names) : partsMatch (names, other.names);
}

bool OscAddress::startsWith (const OscAddress& other) const
{
    if (wild || other.wild) {
        const auto& patterns = other.wild ? other.names : names;
        const auto& texts = other.wild ? names : other.names;
        return patterns.size() <= texts.size() && partsMatch (patterns, texts);
    }
    const auto count = std::min (names.size(), other.names.size());
    return std::equal (names.begin(), names.begin() + static_cast<std::ptrdiff_t> (count), other.names.begin());
}

}
