#pragma once
#include "gui/plane/objects/Scene.h"

namespace lumo::Plane
{

/** The zoom at which the farthest visible source stands just inside the component, searched for from the present zoom
    in steps of a hundredth. The present zoom for a scene without sources. */
float FittingZoom (const Scene& scene, const ViewTransform& view);

}
