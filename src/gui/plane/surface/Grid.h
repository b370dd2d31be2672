#pragma once
#include "text/OrvaneDspString.h"

#include <juce_graphics/juce_graphics.h>

#include <cstdint>

namespace lumo::Plane
{

/** The circles or squares in the background of the scene. */
struct Grid
{
    enum Mode : std::int32_t
    {
        none,
        circular,
        square
    };
    static constexpr std::int32_t numModes = 3;

    /** "none", "circular", "square" or "box"; any other name returns circular. */
    static std::int32_t ModeNamed (const qel::String& name);
    /** "none", "circular" or "cartesian": square modes read back under another name than they were set by. */
    static qel::String NameOf (std::int32_t mode);

    std::int32_t mode = circular;
    float spacing = 1.0f; // metres
    std::uint32_t numLines = 5;
    std::uint32_t numAngularDivisions = 8;
    bool angularDivisionsVisible = false;
    juce::Colour colour = juce::Colours::white;
    bool dashed = false;
};

}
