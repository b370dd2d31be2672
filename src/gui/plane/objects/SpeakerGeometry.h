#pragma once
#include "gui/plane/objects/Speaker.h"
#include "gui/plane/view/ViewTransform.h"

namespace lumo::Plane
{

/** What is derived from where the speakers stand. Each piece is computed when it is asked for and dirty, and kept. */
class SpeakerGeometry
{
public:
    /** The speakers moved, or their number changed. */
    void SpeakersMoved() noexcept;
    /** The view changed: the points hold, the paths do not. */
    void ViewChanged() noexcept;

    void UpdateHull (const qel::Vector<Speaker>& speakers, const ViewTransform& view);
    void UpdateTriangulation (const qel::Vector<Speaker>& speakers, const ViewTransform& view);
    /** True if it had to be computed. */
    bool UpdateProjection (const qel::Vector<Speaker>& speakers);
    /** The largest distance of a speaker from the origin, in metres. */
    void UpdateRadius (const qel::Vector<Speaker>& speakers);

    [[nodiscard]] const juce::Path& Hull() const noexcept { return hull; }
    [[nodiscard]] const juce::Path& Triangulation() const noexcept { return triangulation; }
    [[nodiscard]] const qel::Point3Array& Projection() const noexcept { return projection; }
    [[nodiscard]] float Radius() const noexcept { return radius; }

private:
    bool hullDirty = true;
    bool triangulationDirty = true;
    bool projectionDirty = true;
    juce::Path hull;          // pixels
    juce::Path triangulation; // pixels
    qel::Point3Array projection;
    float radius = 1.0f;
};

}
