#pragma once
#include "text/OrvaneDspString.h"

#include <array>
#include <cstddef>

namespace qel
{

/** An RGBA colour, components 0 to 1. */
struct Colour
{
    float red = 0, green = 0, blue = 0, alpha = 1;

    /** From "0xAARRGGBB"; always opaque, AA is ignored. An invalid pair of digits counts as 0. */
    [[nodiscard]] static Colour fromHex (const String& text);
    /** From red, green, blue, alpha, each clamped to 0 to 1. Missing components default to 0, alpha to 1. */
    [[nodiscard]] static Colour fromNumbers (const float* values, std::size_t count) noexcept;

    /** "0xAARRGGBB", without leading zeros. */
    [[nodiscard]] String toHex() const;
    /** toHex without its first four characters: "RRGGBB" for an opaque colour. */
    [[nodiscard]] String toShortHex() const;
    /** "r g b a", each with three decimals. */
    [[nodiscard]] String toNumbers() const;
    /** Divides red, green and blue by amount + 1. */
    [[nodiscard]] Colour darker (float amount) const noexcept;

    friend bool operator== (const Colour& a, const Colour& b) noexcept
    {
        return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
    }
    friend bool operator!= (const Colour& a, const Colour& b) noexcept { return ! (a == b); }
};

struct NamedColour
{
    const char* name;
    const char* hex; ///< "0xffRRGGBB"
};

inline constexpr std::size_t numNamedColours = 139;
/** The CSS colour keywords in alphabetical order; only the dark grey is our own. */
extern const std::array<NamedColour, numNamedColours> namedColours;

/** The colour in a row of namedColours. */
[[nodiscard]] const Colour& namedColour (std::size_t row);
/** Looks up a keyword, ignoring case; returns false and leaves colour untouched if it is unknown. */
[[nodiscard]] bool findColour (const String& name, Colour& colour);

}
