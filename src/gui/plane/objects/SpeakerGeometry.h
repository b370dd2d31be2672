#pragma once
#include "geometry/OrvaneDspTriangulation.h"
#include "gui/plane/objects/Speaker.h"

namespace lumo::Plane
{

/** Geometry derived from the speakers' positions, in metres. Each piece is computed on demand and cached until a
    speaker moves, independent of the view. */
class SpeakerGeometry
{
public:
    /** Call when a speaker moves or their number changes. */
    void SpeakersMoved() noexcept;

    void UpdateHull (const qel::Vector<Speaker>& speakers);
    void UpdateTriangulation (const qel::Vector<Speaker>& speakers);
    /** Returns whether it was recomputed. */
    bool UpdateProjection (const qel::Vector<Speaker>& speakers);
    /** The radius is the largest distance of a speaker from the origin. */
    void UpdateRadius (const qel::Vector<Speaker>& speakers);

    /** The corners of the convex hull; fewer than three if it has no area. */
    [[nodiscard]] const qel::Point3Array& Hull() const noexcept { return hull; }
    /** Triples of speaker indices. */
    [[nodiscard]] const qel::Vector<qel::Triangulation::Triple>& Triangles() const noexcept
    {
        return triangulation.triples();
    }
    /** The speakers projected onto the sphere of the farthest. */
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
