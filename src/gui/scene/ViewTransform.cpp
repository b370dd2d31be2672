#include "gui/scene/ViewTransform.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

namespace
{

// A narrow component with a wide margin would mirror the scene; this shows a very small scene instead.
constexpr float leastScale = 0.01f;

// The rasteriser uses 32-bit numbers in 256ths of a pixel.
constexpr float farAway = 4.0e6f;

/** Halves go to the even number. */
int Rounded (float value) noexcept { return static_cast<int> (std::lrint (value)); }

float WithinReach (float pixels) noexcept { return std::clamp (pixels, -farAway, farAway); }

}

float ViewTransform::ClampZoom (float wanted) const noexcept
{
    return std::min (std::max (wanted, markerProportion + 0.01f), largestZoom);
}

void ViewTransform::Update (int newWidth, int newHeight) noexcept
{
    width = newWidth;
    height = newHeight;
    halfWidth = static_cast<float> (width) * 0.5f;
    halfHeight = static_cast<float> (height) * 0.5f;
    pixelsPerMetre = std::max (halfWidth * zoom - (halfWidth * markerProportion + 1.0f), leastScale);
    originSize = PixelSize (originProportion);
    markerSize = PixelSize (markerProportion);
}

ScreenPoint ViewTransform::ToScreen (const qel::Point3& metres) const noexcept
{
    const float up = topView ? yOffset + pixelsPerMetre * metres.y : zOffset + pixelsPerMetre * metres.z;
    return { WithinReach (halfWidth + xOffset + pixelsPerMetre * metres.x), WithinReach (halfHeight - up) };
}

qel::Point3 ViewTransform::ToWorld (ScreenPoint pixels) const noexcept
{
    const float x = (pixels.x - halfWidth - xOffset) / pixelsPerMetre;
    const float up = -((pixels.y - halfHeight + (topView ? yOffset : zOffset)) / pixelsPerMetre);
    return topView ? qel::Point3{ x, up, 0 } : qel::Point3{ x, 0, up };
}

int ViewTransform::PixelSize (float proportion) const noexcept
{
    const float size = static_cast<float> (Rounded (static_cast<float> (width) * proportion)) * zoom;
    return static_cast<int> (std::clamp (size, 10.0f, 1000.0f));
}

int ViewTransform::Margin() const noexcept { return Rounded (static_cast<float> (width) * markerProportion); }

float ViewTransform::GridScale() const noexcept
{
    const float margin = static_cast<float> (Margin()) * 0.5f + 1.0f;
    return std::max (static_cast<float> (width) * 0.5f * zoom - margin, leastScale);
}

}
