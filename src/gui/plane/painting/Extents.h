#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

/** All pixels that an object may touch: changes repaint them before and after, and painters skip what does not meet the
    clip. Includes a margin for anti-aliasing and for rounding at fractional scales; empty for what is not drawn. */
namespace lumo::Plane
{

[[nodiscard]] juce::Rectangle<int> ExtentOf (const Source& source, const Surface& surface);
[[nodiscard]] juce::Rectangle<int> ExtentOf (const Speaker& speaker, bool selected, const Surface& surface);
[[nodiscard]] juce::Rectangle<int> ExtentOf (const Listener& listener, const Surface& surface);

/** Sides of icons, and a fan's radius, in pixels. */
[[nodiscard]] float SizeOf (const Source& source, const ViewTransform& view) noexcept;
[[nodiscard]] float SizeOf (const Speaker& speaker, const ViewTransform& view) noexcept;
[[nodiscard]] float SizeOf (const Listener& listener, const ViewTransform& view) noexcept;
[[nodiscard]] float ApertureRadius (const Source& source, const ViewTransform& view) noexcept;

/** Parts of a source's extent that layers draw separately: its fan, and its icon with its texts. */
[[nodiscard]] juce::Rectangle<int> ExtentOfFan (const Source& source, const Surface& surface);
[[nodiscard]] juce::Rectangle<int> ExtentOfBody (const Source& source, const Surface& surface);
/** Direction of a fan's centre: radians, clockwise from the top. */
[[nodiscard]] float RotationOfFan (const Source& source) noexcept;

/** Bounds of a level meter. */
[[nodiscard]] juce::Rectangle<float> MeterOf (const Source& source, const ViewTransform& view);
[[nodiscard]] juce::Rectangle<float> MeterOf (const Speaker& speaker, const ViewTransform& view);

/** Style of a name beside an object of this size in pixels. */
[[nodiscard]] Caption::Style LabelStyle (float size) noexcept;
[[nodiscard]] Caption::Style NameStyle (float size) noexcept;

/** Bounds of a selected object's coordinates. */
[[nodiscard]] juce::Rectangle<int> CoordinatesOf (const Source& source, const ViewTransform& view);
[[nodiscard]] juce::Rectangle<int> CoordinatesOf (const Speaker& speaker, const ViewTransform& view);

/** The circle around a selected source. */
[[nodiscard]] juce::Rectangle<float> RadiusOf (const Source& source, const ViewTransform& view);

/** Rounds outwards and adds the extents' margin. */
[[nodiscard]] juce::Rectangle<int> WithRoom (juce::Rectangle<float> area);

}
