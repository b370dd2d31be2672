#include "osc/OrvaneDspOscPattern.h"

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

}

/** Matching terminates for any pattern and text; plain text matches only itself, and a final star any continuation. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    const std::string input (reinterpret_cast<const char*> (data), size);
    const auto split = input.find ('\n');
    const auto pattern = input.substr (0, split);
    const auto text = split == std::string::npos ? std::string() : input.substr (split + 1);

    const bool matches = qel::matchOscPattern (pattern, text);
    if (pattern.find_first_of ("*?[{") == std::string::npos) {
        require (matches == (pattern == text));
        require (qel::matchOscPattern (pattern + "*", pattern + "x" + text));
    }
    if (matches)
        require (qel::matchOscPattern (pattern + "{,x}", text + "x"));
    return 0;
}
