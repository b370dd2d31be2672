#pragma once
#include "geometry/OrvaneDspTriangulation.h"
#include "gui/scene/Positions.h"

#include <utility>

namespace lumo::Plane
{

/** Geometry derived from the speakers' positions, in metres. Each piece is computed on demand and cached until a
    speaker moves, independent of the view. */
class SpeakerGeometry
{
public:
    /** Call when a speaker moves or their number changes. */
    void SpeakersMoved() noexcept { hullDirty = triangulationDirty = projectionDirty = true; }

    template <typename Speakers>
    void UpdateHull (const Speakers& speakers)
    {
        if (std::exchange (hullDirty, false))
            ComputeHull (PositionsOf (speakers));
    }
    template <typename Speakers>
    void UpdateTriangulation (const Speakers& speakers)
    {
        if (std::exchange (triangulationDirty, false))
            triangulation.compute (PositionsOf (speakers));
    }
    /** Returns whether it was recomputed. */
    template <typename Speakers>
    bool UpdateProjection (const Speakers& speakers)
    {
        if (! std::exchange (projectionDirty, false))
            return false;
        ComputeProjection (PositionsOf (speakers));
        return true;
    }
    /** The radius is the largest distance of a speaker from the origin. */
    template <typename Speakers>
    void UpdateRadius (const Speakers& speakers)
    {
        radius = qel::maximumRadius (PositionsOf (speakers));
    }

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
    void ComputeHull (const qel::Point3Array& positions);
    void ComputeProjection (const qel::Point3Array& positions);

    bool hullDirty = true;
    bool triangulationDirty = true;
    bool projectionDirty = true;
    qel::Point3Array hull;
    qel::Triangulation triangulation;
    qel::Point3Array projection;
    float radius = 1.0f;
};

}
