#pragma once
#include "geometry/OrvaneDspPoint3.h"
#include "gui/plane/icons/Icons.h"

namespace lumo::Plane
{

/** The scene's listener. Angles in radians. */
struct Listener
{
    [[nodiscard]] Plane::Icon Icon (bool topView) const noexcept;

    qel::Point3 position;
    juce::Point<float> screenPosition;
    float yaw = 0, pitch = 0, roll = 0;
    bool visible = true;
    bool headphonesVisible = false;
    bool editable = false;
    float proportion = 0.15f;
};

}
