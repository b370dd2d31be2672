#include "osc/OrvaneDspOscMessage.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{

void require (bool holds)
{
    if (! holds)
        std::abort();
}

bool isLiteral (const qel::String& text)
{
    try {
        return qel::OscAddress (text, qel::OscAddress::Kind::literal).text() == qel::OscAddress (text).text();
    } catch (const qel::Exception&) {
        return false;
    }
}

}

/** An address is rejected, or has one form that parses back to itself; a literal address matches itself, and wildcard
    matches are symmetric. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    const std::string input (reinterpret_cast<const char*> (data), size);
    const auto split = input.find ('\n');
    const qel::String first (input.substr (0, split));
    const qel::String second (split == std::string::npos ? first : qel::String (input.substr (split + 1)));
    try {
        const qel::OscAddress address (first), other (second);
        require (qel::OscAddress (address.text()).text() == address.text());
        require (qel::OscAddress (address.text()).parts() == address.parts());
        if (isLiteral (first))
            require (! address.hasWildcards() && address.matches (address) && address.startsWith (address));
        if (address.hasWildcards() != other.hasWildcards())
            require (address.matches (other) == other.matches (address));
        if (address.matches (other))
            require (address.startsWith (other) && address.parts().size() == other.parts().size());
    } catch (const qel::Exception&) { // rejected
    }
    return 0;
}
