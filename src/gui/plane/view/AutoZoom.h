#pragma once
#include "gui/plane/objects/Scene.h"

namespace lumo::Plane
{

/** The zoom at which the farthest visible source is just inside the component, searched from the present zoom in steps
    of a hundredth. Returns the present zoom for a scene without sources. */
float FittingZoom (const Scene& scene, const ViewTransform& view);

}
