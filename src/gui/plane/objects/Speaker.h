#pragma once
#include "geometry/OrvaneDspPoint3.h"
#include "gui/plane/icons/Icons.h"
#include "gui/plane/painting/Caption.h"
#include "gui/scene/Limits.h"

namespace lumo::Plane
{

/** A loudspeaker of the scene. */
struct Speaker
{
    explicit Speaker (int number) : name (juce::String (number)) {}

    [[nodiscard]] Plane::Icon Icon() const noexcept { return { Plane::Icon::Kind::speaker, colour }; }

    qel::Point3 position;
    juce::Point<float> screenPosition;
    Caption name;
    float level = leastLevel; // dB
    bool editable = true;
    bool visible = true;
    bool nameVisible = true;
    float proportion = 0.1f;
    juce::Colour colour = juce::Colours::black;
};

}
