#pragma once
#include "geometry/OrvaneDspTriangulation.h"
#include "gui/plane/objects/Speaker.h"

namespace lumo::Plane
{

/** What is derived from where the speakers stand, in metres. Each piece is computed when it is wanted, and kept until
    a speaker moves: the view does not matter to it. */
class SpeakerGeometry
{
public:
    /** A speaker moved, or their number changed. */
    void SpeakersMoved() noexcept;

    void UpdateHull (const qel::Vector<Speaker>& speakers);
    void UpdateTriangulation (const qel::Vector<Speaker>& speakers);
    /** True if it had to be computed. */
    bool UpdateProjection (const qel::Vector<Speaker>& speakers);
    /** The largest distance of a speaker from the origin. */
    void UpdateRadius (const qel::Vector<Speaker>& speakers);

    /** The corners of the convex hull; fewer than three for a hull with no inside. */
    [[nodiscard]] const qel::Point3Array& Hull() const noexcept { return hull; }
    /** Triples of speakers. */
    [[nodiscard]] const qel::Vector<qel::Triangulation::Triple>& Triangles() const noexcept
    {
        return triangulation.triples();
    }
    /** Each speaker moved out to the sphere of the farthest. */
    [[nodiscard]] const qel::Point3Array& Projection() const noexcept { return projection; }
    [[nodiscard]] float Radius() const noexcept { return radius; }

private:
    bool hullDirty = true;
    bool triangulationDirty = true;
    bool projectionDirty = true;
    qel::Point3Array hull;
    qel::Triangulation triangulation;
    qel::Point3Array projection;
    float radius = 1.0f;
};

}
