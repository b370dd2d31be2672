#pragma once
#include "gui/plane/icons/Icons.h"
#include "gui/plane/painting/Caption.h"
#include "gui/scene/Limits.h"
#include "gui/scene/Orientation.h"

namespace lumo::Plane
{

/** A sound source: its data, and the rules for its yaw and appearance. Angles in radians. */
class Source
{
public:
    explicit Source (int number);

    /** Sets the yaw, wrapped, according to the mode: two of the modes ignore it. */
    void SetYaw (float degrees);
    /** Updates yaw and offset after a move. Returns the degrees to report, if the mode reports. */
    std::optional<float> UpdateYaw (const qel::Point3& listener);
    [[nodiscard]] float YawDegrees() const noexcept;
    /** The yaw relative to the source's direction. */
    [[nodiscard]] float RelativeYaw() const noexcept;

    /** Clamped to 10..180. */
    void SetApertureDegrees (float degrees) noexcept;
    [[nodiscard]] float ApertureDegrees() const noexcept;

    void SetColour (juce::Colour newColour) noexcept { colour = newColour; }
    void SetEditable (bool canBeEdited) noexcept { editable = canBeEdited; }
    void SetProportion (float value) noexcept;

    [[nodiscard]] juce::Colour Colour() const noexcept { return colour; }
    [[nodiscard]] bool Editable() const noexcept { return editable; }
    [[nodiscard]] float Proportion() const noexcept { return proportion; }
    [[nodiscard]] float ApertureProportion() const noexcept { return apertureProportion; }
    [[nodiscard]] Plane::Icon Icon() const noexcept;

    juce::Point<float> screenPosition;
    float aperture = 1.3962634f; // half the fan's angle
    float yaw = 0;
    float yawOffset = 0; // relative to the source's direction
    bool selected = false;
    bool visible = true;
    bool labelVisible = true;
    bool apertureVisible = true;
    bool coordinatesVisible = true;
    Caption label;
    qel::Point3 position;
    float level = leastLevel; // dB
    juce::Colour labelColour = juce::Colours::black;
    Orientation::Mode yawMode = Orientation::yawConstraint;
    float radius = 1.0f; // metres
    juce::Colour apertureColour{ 0x9EFFFFFF };

private:
    [[nodiscard]] float Direction() const noexcept;

    juce::Colour colour{ juce::Colour::fromFloatRGBA (0.49019608f, 1.0f, 0.0f, 1.0f) };
    bool editable = true;
    float proportion = 0.07f;
    float apertureProportion = 0.075f;
};

}
