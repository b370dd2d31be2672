#include "files/OrvaneDspUniqueName.h"

#include <cctype>
#include <charconv>
#include <cstdint>
#include <optional>

namespace qel
{

namespace
{

/** Removes the number in parentheses at the end of a base, as in "take(2)", and returns it. */
std::optional<std::uint64_t> takeNumberOff (std::string& base)
{
    const auto open = base.rfind ('(');
    if (open == std::string::npos || open == 0 || base.back() != ')')
        return {};

    std::uint64_t number = 0;
    const auto* const end = base.data() + base.size() - 1;
    const auto [stop, fault] = std::from_chars (base.data() + open + 1, end, number);
    if (fault != std::errc() || stop != end)
        return {};
    base.resize (open);
    return number;
}

bool endsWithDigit (const std::string& text)
{
    return ! text.empty() && std::isdigit (static_cast<unsigned char> (text.back())) != 0;
}

}

String uniqueName (const String& base, const String& suffix, UniqueName style,
                   const std::function<bool (const String&)>& isTaken)
{
    if (! isTaken (base + suffix))
        return base + suffix;

    auto stem = base.str();
    const auto counted = takeNumberOff (stem);
    const bool parentheses =
        counted.has_value() || style.parentheses || (style.parenthesesAfterDigit && endsWithDigit (stem));
    for (auto number = counted.value_or (1) + 1;; ++number) {
        const String digits (number);
        auto name = stem + (parentheses ? "(" + digits + ")" : digits) + suffix;
        if (! isTaken (name))
            return name;
    }
}

}
