#pragma once
#include "gui/plane/PlaneComponent.h"

namespace lumo::Plane
{

/** The context menu, ticked by the plane's options and drawn in its look. */
[[nodiscard]] juce::PopupMenu MakePlaneMenu (PlaneComponent& plane);
/** Shows it asynchronously; the choice arrives later, or never if the plane is gone by then. */
void ShowPlaneMenu (PlaneComponent& plane);

}
