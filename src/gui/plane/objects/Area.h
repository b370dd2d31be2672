#pragma once
#include "gui/plane/view/OnScreen.h"

namespace lumo::Plane
{

/** A named polygon on the floor. */
struct Area
{
    /** Replaces the corners; none empties the area. */
    void SetPoints (const qel::Point3Array& corners, const ViewTransform& view);
    void UpdateScreen (const ViewTransform& view);
    /** Ignores z. */
    [[nodiscard]] bool Contains (const qel::Point3& point) const;

    qel::Point3Array points;
    juce::Point<float> labelPosition; // pixels
    juce::Colour colour{ 0x9E2A9DA5 };
    juce::String label;
    bool visible = true;
    juce::Path screenPath;
    juce::Path worldPath; // metres
};

}
