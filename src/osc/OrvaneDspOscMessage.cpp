#include "osc/OrvaneDspOscMessage.h"
#include "osc/OrvaneDspOscAddressCache.h"

#include <algorithm>
#include <cstring>

namespace qel
{

bool OSCMessage::matches (const String& wanted) const
{
    return destination.matches (OscAddressCache::shared().find (wanted));
}

bool OSCMessage::startsWith (const String& wanted) const
{
    return destination.startsWith (OscAddressCache::shared().find (wanted));
}

bool OSCMessage::has (char letter) const noexcept { return arguments.size() == 1 && arguments[0].is (letter); }

bool OSCMessage::has (const char* letters, bool exact) const noexcept
{
    const auto count = std::strlen (letters);
    if (count > arguments.size() || (exact && count != arguments.size()))
        return false;
    return std::equal (letters, letters + count, arguments.begin(),
                       [] (char letter, const OSCArgument& argument) { return argument.is (letter); });
}

Vector<float> OSCMessage::toFloats() const
{
    const auto isNumber = [] (const OSCArgument& argument) { return argument.is ('n'); };
    Vector<float> numbers;
    if (std::all_of (arguments.begin(), arguments.end(), isNumber))
        for (const auto& argument : arguments)
            numbers.push_back (argument.asFloat());
    return numbers;
}

Colour OSCMessage::toColour() const
{
    const auto numbers = toFloats();
    return Colour::fromNumbers (numbers.data(), numbers.size());
}

}
