#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <array>
#include <memory>

namespace lumo::Plane
{

/** The head in the scene. Angles in radians. */
class Listener
{
public:
    Listener();

    [[nodiscard]] const juce::Drawable& Icon (bool topView) const noexcept;

    qel::Point3 position;
    juce::Point<float> screenPosition;
    float yaw = 0, pitch = 0, roll = 0;
    bool visible = true;
    bool headphonesVisible = false;
    bool editable = false;
    float proportion = 0.15f;

private:
    std::array<std::unique_ptr<juce::Drawable>, 4> icons; // by kind: front, front with headphones, top, top with them
};

}
