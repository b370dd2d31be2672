#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>

namespace lumo::Plane
{

/** A loudspeaker of the scene. */
class Speaker
{
public:
    explicit Speaker (int number);

    /** Builds the icon anew if the colour differs. */
    void SetColour (juce::Colour newColour);
    [[nodiscard]] juce::Colour Colour() const noexcept { return colour; }
    [[nodiscard]] const juce::Drawable& Icon() const noexcept { return *image; }

    qel::Point3 position;
    juce::Point<float> screenPosition;
    juce::String name;
    float level = -60; // dB
    bool editable = true;
    bool visible = true;
    bool nameVisible = true;
    float proportion = 0.1f;

private:
    juce::Colour colour = juce::Colours::black;
    std::unique_ptr<juce::Drawable> image;
};

}
