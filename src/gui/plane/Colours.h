#pragma once
#include "common/OrvaneDspColour.h"

#include <juce_graphics/juce_graphics.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace lumo::Plane
{

/** Clamps each component to 0 to 1; returns nothing if one is NaN. */
[[nodiscard]] inline std::optional<juce::Colour> ColourFrom (float red, float green, float blue, float alpha)
{
    if (std::isnan (red) || std::isnan (green) || std::isnan (blue) || std::isnan (alpha))
        return {};
    const auto limit = [] (float component) { return std::clamp (component, 0.0f, 1.0f); };
    return juce::Colour::fromFloatRGBA (limit (red), limit (green), limit (blue), limit (alpha));
}

[[nodiscard]] inline juce::Colour FromCore (const qel::Colour& c)
{
    return juce::Colour::fromFloatRGBA (c.red, c.green, c.blue, c.alpha);
}

[[nodiscard]] inline qel::Colour ToCore (juce::Colour c)
{
    return { c.getFloatRed(), c.getFloatGreen(), c.getFloatBlue(), c.getFloatAlpha() };
}

}
