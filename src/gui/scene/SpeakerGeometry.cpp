#include "gui/scene/SpeakerGeometry.h"

#include "geometry/OrvaneDspConvexHull2D.h"
#include "geometry/OrvaneDspSpeakerAlignment.h"

namespace lumo::Plane
{

void SpeakerGeometry::ComputeHull (const qel::Point3Array& positions) { hull = qel::ConvexHull2D (positions).hull(); }

void SpeakerGeometry::ComputeProjection (const qel::Point3Array& positions)
{
    projection = qel::alignSpeakers (positions).points;
}

}
