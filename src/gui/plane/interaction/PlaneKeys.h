#pragma once
#include "gui/plane/PlaneComponent.h"

namespace lumo::Plane
{

/** Handles a key on a plane; false if the key has no row. */
bool PressKey (PlaneComponent& plane, const juce::KeyPress& key);

}
