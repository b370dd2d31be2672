#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <juce_graphics/juce_graphics.h>

namespace lumo::Plane
{

/** The mapping between metres of the scene and pixels of the component: one of two orthographic projections.
    The scale follows the width alone. Arithmetic only; painting, hit testing and dragging share it. */
class ViewTransform
{
public:
    /** Limits of the zoom factor; the lower one depends on the margin. */
    static constexpr float largestZoom = 100.0f;
    [[nodiscard]] float ClampZoom (float zoom) const noexcept;

    /** To be called after each change of size, zoom or proportions. */
    void Update (int width, int height) noexcept;

    /** Coordinates are finite and within some millions of pixels, which is what the rasteriser can count. */
    [[nodiscard]] juce::Point<float> ToScreen (const qel::Point3& metres) const noexcept;
    /** The coordinate that the view does not show is 0. */
    [[nodiscard]] qel::Point3 ToWorld (juce::Point<float> pixels) const noexcept;

    /** Side of an object that takes a proportion of the width: 10 to 1000 pixels. It is the hit radius, too. */
    [[nodiscard]] int PixelSize (float proportion) const noexcept;
    /** All that the component shows, in pixels. */
    [[nodiscard]] juce::Rectangle<int> Bounds() const noexcept { return { width, height }; }
    /** Pixels of one metre for what is drawn about the origin, margin taken off: the grid's own rounding. */
    [[nodiscard]] float GridScale() const noexcept;
    /** The margin in pixels: a proportion of the width, rounded to even. */
    [[nodiscard]] int Margin() const noexcept;

    bool topView = true; // the front view otherwise
    float zoom = 1.0f;
    float originProportion = 0.02f;
    float markerProportion = 0.1f;
    float xOffset = 0, yOffset = 0, zOffset = 0; // pixels, added after scaling; positive goes right or up

    int width = 0, height = 0;
    int originSize = 10, markerSize = 10;
    float halfWidth = 0, halfHeight = 0;
    float pixelsPerMetre = 1;
};

}
