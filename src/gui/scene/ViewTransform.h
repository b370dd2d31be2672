#pragma once
#include "geometry/OrvaneDspPoint3.h"

namespace lumo::Plane
{

/** A place on the component in pixels, right and down of its corner. */
struct ScreenPoint
{
    float x, y;
};

/** Maps metres of the scene to component pixels by one of two orthographic projections. The scale depends on the width
    alone. Arithmetic only; shared by painting, hit testing and dragging. */
class ViewTransform
{
public:
    /** Limits of the zoom factor; the lower one depends on the margin. */
    static constexpr float largestZoom = 100.0f;
    [[nodiscard]] float ClampZoom (float zoom) const noexcept;

    /** Call after each change of size, zoom or proportions. */
    void Update (int width, int height) noexcept;

    /** Finite, and within some millions of pixels, the rasteriser's range. */
    [[nodiscard]] ScreenPoint ToScreen (const qel::Point3& metres) const noexcept;
    /** The coordinate hidden by the view is 0. */
    [[nodiscard]] qel::Point3 ToWorld (ScreenPoint pixels) const noexcept;

    /** Side of an object that takes a proportion of the width: 10 to 1000 pixels. Also the hit radius. */
    [[nodiscard]] int PixelSize (float proportion) const noexcept;
    /** Pixels per metre for what is drawn about the origin, without the margin; rounded as the grid is. */
    [[nodiscard]] float GridScale() const noexcept;
    /** The margin in pixels: a proportion of the width, rounded to even. */
    [[nodiscard]] int Margin() const noexcept;

    bool topView = true; // otherwise the front view
    float zoom = 1.0f;
    float originProportion = 0.02f;
    float markerProportion = 0.1f;
    float xOffset = 0, yOffset = 0, zOffset = 0; // pixels, added after scaling; positive is right or up

    int width = 0, height = 0;
    int originSize = 10, markerSize = 10;
    float halfWidth = 0, halfHeight = 0;
    float pixelsPerMetre = 1;
};

}
