#pragma once
#include "gui/plane/objects/Scene.h"
#include "gui/plane/surface/Surface.h"

/** All pixels that an object may touch as it stands: a change repaints them before and after, and a painter passes over
    what the clip does not meet. With room for smooth edges and for the window system's rounding at scales between whole
    ones; empty for what is not drawn. */
namespace lumo::Plane
{

[[nodiscard]] juce::Rectangle<int> ExtentOf (const Source& source, const Surface& surface);
[[nodiscard]] juce::Rectangle<int> ExtentOf (const Speaker& speaker, bool selected, const Surface& surface);
[[nodiscard]] juce::Rectangle<int> ExtentOf (const Listener& listener, const Surface& surface);

/** Sides of the icons, and the radius of a fan, in pixels. */
[[nodiscard]] float SizeOf (const Source& source, const ViewTransform& view) noexcept;
[[nodiscard]] float SizeOf (const Speaker& speaker, const ViewTransform& view) noexcept;
[[nodiscard]] float SizeOf (const Listener& listener, const ViewTransform& view) noexcept;
[[nodiscard]] float ApertureRadius (const Source& source, const ViewTransform& view) noexcept;

/** The parts of a source's extent that layers draw one by one: its fan, and its icon with what is written about it. */
[[nodiscard]] juce::Rectangle<int> ExtentOfFan (const Source& source, const Surface& surface);
[[nodiscard]] juce::Rectangle<int> ExtentOfBody (const Source& source, const Surface& surface);
/** Where the middle of a fan points to: radians, clockwise from the top. */
[[nodiscard]] float RotationOfFan (const Source& source) noexcept;

/** Where a level meter stands. */
[[nodiscard]] juce::Rectangle<float> MeterOf (const Source& source, const ViewTransform& view);
[[nodiscard]] juce::Rectangle<float> MeterOf (const Speaker& speaker, const ViewTransform& view);

/** How names are set beside an object of that size in pixels. */
[[nodiscard]] Caption::Style LabelStyle (float size) noexcept;
[[nodiscard]] Caption::Style NameStyle (float size) noexcept;

/** Where the coordinates of a selected object stand. */
[[nodiscard]] juce::Rectangle<int> CoordinatesOf (const Source& source, const ViewTransform& view);
[[nodiscard]] juce::Rectangle<int> CoordinatesOf (const Speaker& speaker, const ViewTransform& view);

/** The circle of a selected source. */
[[nodiscard]] juce::Rectangle<float> RadiusOf (const Source& source, const ViewTransform& view);

/** Rounded outwards, with the room that an extent has. */
[[nodiscard]] juce::Rectangle<int> WithRoom (juce::Rectangle<float> area);

}
