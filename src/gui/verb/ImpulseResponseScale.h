#pragma once
#include <algorithm>
#include <cmath>

namespace halcyra
{

/** Maps times and levels to pixels in an impulse response of a given size. */
struct ImpulseResponseScale
{
    static constexpr float defaultZoom = 0.5f, leastZoom = 0.25f, greatestZoom = 2.0f;

    float width = 0, height = 0;
    float zoom = defaultZoom;

    /** Of the time axis, in ms. */
    [[nodiscard]] float span() const noexcept { return 200.0f / zoom; }
    [[nodiscard]] float x (float ms) const noexcept { return width * ms / span(); }
    /** The top of a line; a gain of 1 reaches half the height; the sign is ignored. */
    [[nodiscard]] float top (float gain) const noexcept { return height - 0.5f * height * std::abs (gain); }
    /** The zoom after a wheel event. */
    [[nodiscard]] static float zoomed (float zoom, float wheelDelta) noexcept
    {
        return std::clamp (zoom * std::pow (2.0f, 0.15f * wheelDelta), leastZoom, greatestZoom);
    }
};

}
