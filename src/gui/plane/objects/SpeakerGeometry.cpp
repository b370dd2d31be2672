#include "gui/plane/objects/SpeakerGeometry.h"

#include "geometry/OrvaneDspConvexHull2D.h"
#include "geometry/OrvaneDspSpeakerAlignment.h"
#include "gui/plane/objects/Positions.h"

#include <utility>

namespace lumo::Plane
{

void SpeakerGeometry::SpeakersMoved() noexcept { hullDirty = triangulationDirty = projectionDirty = true; }

void SpeakerGeometry::UpdateHull (const qel::Vector<Speaker>& speakers)
{
    if (std::exchange (hullDirty, false))
        hull = qel::ConvexHull2D (PositionsOf (speakers)).hull();
}

void SpeakerGeometry::UpdateTriangulation (const qel::Vector<Speaker>& speakers)
{
    if (std::exchange (triangulationDirty, false))
        triangulation.compute (PositionsOf (speakers));
}

bool SpeakerGeometry::UpdateProjection (const qel::Vector<Speaker>& speakers)
{
    if (! std::exchange (projectionDirty, false))
        return false;
    projection = qel::alignSpeakers (PositionsOf (speakers)).points;
    return true;
}

void SpeakerGeometry::UpdateRadius (const qel::Vector<Speaker>& speakers)
{
    radius = qel::maximumRadius (PositionsOf (speakers));
}

}
