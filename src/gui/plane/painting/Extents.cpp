#include "gui/plane/painting/Extents.h"

#include "gui/plane/painting/Drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumo::Plane
{

namespace
{

constexpr int coordinatesWidth = 100, coordinatesHeight = 20;
constexpr float meterWidth = 5;

/** Kept at whole pixels. */
juce::Rectangle<int> CoordinatesAt (juce::Point<float> at, float size, int down)
{
    const auto x = static_cast<int> (at.x), y = static_cast<int> (at.y), half = static_cast<int> (size * 0.5f);
    return { x - coordinatesWidth / 2, y + half + down, coordinatesWidth, coordinatesHeight };
}

template <typename Object>
juce::Rectangle<float> MeterAt (const Object& object, float size, float xOffset)
{
    const auto at = object.screenPosition;
    return { at.x + size * 0.5f + xOffset, at.y - size * 0.5f, meterWidth, size };
}

float NameHeight (float size) noexcept { return juce::jlimit (12.0f, 20.0f, size * 0.5f); }

}

float SizeOf (const Source& source, const ViewTransform& view) noexcept
{
    return static_cast<float> (view.PixelSize (source.Proportion()));
}

float SizeOf (const Speaker& speaker, const ViewTransform& view) noexcept
{
    return static_cast<float> (view.PixelSize (speaker.proportion));
}

float SizeOf (const Listener& listener, const ViewTransform& view) noexcept
{
    return static_cast<float> (view.PixelSize (listener.proportion));
}

float ApertureRadius (const Source& source, const ViewTransform& view) noexcept
{
    return static_cast<float> (view.PixelSize (source.ApertureProportion()));
}

juce::Rectangle<int> WithRoom (juce::Rectangle<float> area) { return area.getSmallestIntegerContainer().expanded (2); }

Caption::Style LabelStyle (float size) noexcept { return { NameHeight (size), false, 6 * size }; }
Caption::Style NameStyle (float size) noexcept { return { NameHeight (size), true, 6 * size }; }

juce::Rectangle<int> CoordinatesOf (const Source& source, const ViewTransform& view)
{
    return CoordinatesAt (source.screenPosition, SizeOf (source, view), 0);
}

juce::Rectangle<int> CoordinatesOf (const Speaker& speaker, const ViewTransform& view)
{
    return CoordinatesAt (speaker.screenPosition, SizeOf (speaker, view), -10);
}

juce::Rectangle<float> MeterOf (const Source& source, const ViewTransform& view)
{
    return MeterAt (source, SizeOf (source, view), 2.0f);
}

juce::Rectangle<float> MeterOf (const Speaker& speaker, const ViewTransform& view)
{
    return MeterAt (speaker, SizeOf (speaker, view), -2.5f);
}

juce::Rectangle<float> RadiusOf (const Source& source, const ViewTransform& view)
{
    const float metre =
        std::trunc (view.halfWidth * view.zoom) - std::trunc (static_cast<float> (view.Margin()) * 0.5f + 1);
    return SquareAt (source.screenPosition, juce::jlimit (0.0f, 1.0e6f, 2 * source.radius * metre));
}

float RotationOfFan (const Source& source) noexcept
{
    return source.yawMode == Orientation::translation ? source.yawOffset : source.RelativeYaw();
}

/** The centre, the ends of the arc, and where it crosses quarter turns. */
juce::Rectangle<int> ExtentOfFan (const Source& source, const Surface& surface)
{
    const auto& view = surface.viewTransform;
    if (! source.visible || ! source.apertureVisible || ! surface.options.apertureVisible || ! view.topView ||
        source.yawMode == Orientation::follow)
        return {};
    constexpr float quarter = juce::MathConstants<float>::halfPi;
    constexpr float corners = 8; // how far the stroke's corners may protrude
    const auto at = source.screenPosition;
    const float radius = ApertureRadius (source, view);
    const float first = RotationOfFan (source) - source.aperture, last = first + 2 * source.aperture;
    std::array<juce::Point<float>, 8> points{ at, at.getPointOnCircumference (radius, first),
                                              at.getPointOnCircumference (radius, last) };
    int count = 3;
    for (float k = std::ceil (first / quarter); k * quarter < last; ++k) // at most five
        points[static_cast<std::size_t> (count++)] = at.getPointOnCircumference (radius, k * quarter);
    const auto extent = juce::Rectangle<float>::findAreaContainingPoints (points.data(), count);
    return extent.expanded (corners).getSmallestIntegerContainer();
}

juce::Rectangle<int> ExtentOfBody (const Source& source, const Surface& surface)
{
    const auto& view = surface.viewTransform;
    if (! source.visible)
        return {};
    const float size = SizeOf (source, view);
    auto extent = SquareAt (source.screenPosition, size);
    if (source.labelVisible)
        extent = extent.getUnion (source.label.Extent (source.screenPosition, LabelStyle (size)));
    if (source.selected && source.coordinatesVisible)
        extent = extent.getUnion (CoordinatesOf (source, view).toFloat());
    return WithRoom (extent);
}

juce::Rectangle<int> ExtentOf (const Source& source, const Surface& surface)
{
    auto extent = ExtentOfBody (source, surface).getUnion (ExtentOfFan (source, surface));
    if (surface.options.sourcesLevelsVisible && source.visible)
        extent = extent.getUnion (WithRoom (MeterOf (source, surface.viewTransform)));
    if (surface.options.radiusVisible && source.selected)
        extent = extent.getUnion (WithRoom (RadiusOf (source, surface.viewTransform)));
    return extent;
}

juce::Rectangle<int> ExtentOf (const Speaker& speaker, bool selected, const Surface& surface)
{
    const auto& view = surface.viewTransform;
    const auto& options = surface.options;
    if (! speaker.visible || ! (options.speakersVisible || options.speakersLevelsVisible))
        return {};
    const float size = SizeOf (speaker, view);
    auto extent = SquareAt (speaker.screenPosition, size + 2).getUnion (MeterOf (speaker, view));
    if (speaker.nameVisible)
        extent = extent.getUnion (speaker.name.Extent (speaker.screenPosition, NameStyle (size)));
    if (selected)
        extent = extent.getUnion (CoordinatesOf (speaker, view).toFloat());
    return WithRoom (extent);
}

juce::Rectangle<int> ExtentOf (const Listener& listener, const Surface& surface)
{
    if (! listener.visible)
        return {};
    constexpr float turned = 1.4143f; // at any rotation
    return WithRoom (SquareAt (listener.screenPosition, turned * SizeOf (listener, surface.viewTransform)));
}

}
