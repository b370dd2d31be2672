#include "common/OrvaneDspColour.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace qel
{

namespace
{

/** The two hex digits at start, as 0 to 1. */
float component (const String& digits, std::size_t start)
{
    if (digits.size() < start + 2)
        return 0;
    return static_cast<float> (std::max (0, String::hexByte (digits[start], digits[start + 1])) / 255.0);
}

std::uint32_t byteOf (float value) noexcept
{
    return static_cast<std::uint32_t> (std::clamp (std::isnan (value) ? 0.0f : value, 0.0f, 1.0f) * 255.0f);
}

std::array<Colour, numNamedColours> buildNamedColours()
{
    std::array<Colour, numNamedColours> colours;
    std::transform (namedColours.begin(), namedColours.end(), colours.begin(),
                    [] (const NamedColour& row) { return Colour::fromHex (row.hex); });
    return colours;
}

}

Colour Colour::fromHex (const String& text)
{
    String digits = text;
    digits.replaceAll ("0x", "");
    return { component (digits, 2), component (digits, 4), component (digits, 6), 1.0f };
}

Colour Colour::fromNumbers (const float* values, std::size_t count) noexcept
{
    const auto number = [=] (std::size_t index, float ifMissing) {
        const float value = index < count ? values[index] : ifMissing;
        return std::isnan (value) ? 0.0f : std::clamp (value, 0.0f, 1.0f);
    };
    return { number (0, 0), number (1, 0), number (2, 0), number (3, 1) };
}

String Colour::toHex() const
{
    const auto number = byteOf (alpha) << 24 | byteOf (red) << 16 | byteOf (green) << 8 | byteOf (blue);
    return "0x" + String::formatted ("%X", static_cast<int> (number));
}

String Colour::toShortHex() const { return toHex().substr (4); }

String Colour::toNumbers() const
{
    String text;
    for (const float value : { red, green, blue })
        text += String::formatted ("%.3f ", static_cast<double> (value));
    return text + String::formatted ("%.3f", static_cast<double> (alpha));
}

Colour Colour::darker (float amount) const noexcept
{
    const float factor = 1.0f / (amount + 1.0f);
    return { red * factor, green * factor, blue * factor, alpha };
}

const Colour& namedColour (std::size_t row)
{
    static const auto colours = buildNamedColours();
    return colours[row];
}

bool findColour (const String& name, Colour& colour)
{
    const String wanted = name.toLowerCase();
    const auto found = std::find_if (namedColours.begin(), namedColours.end(),
                                     [&] (const NamedColour& row) { return wanted == row.name; });
    if (found == namedColours.end())
        return false;
    colour = namedColour (static_cast<std::size_t> (found - namedColours.begin()));
    return true;
}

}
