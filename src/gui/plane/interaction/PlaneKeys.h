#pragma once
#include "gui/plane/PlaneComponent.h"

namespace lumo::Plane
{

/** Does what the key says on a plane; false for a key that says nothing here. */
bool PressKey (PlaneComponent& plane, const juce::KeyPress& key);

}
