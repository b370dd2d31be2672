#pragma once
#include "gui/plane/PlaneComponent.h"

namespace lumo::Plane
{

/** The menu of the right button, ticked by the plane's options and in its look. */
[[nodiscard]] juce::PopupMenu MakePlaneMenu (PlaneComponent& plane);
/** Shows it and returns; the choice arrives later, or never if the plane is gone by then. */
void ShowPlaneMenu (PlaneComponent& plane);

}
