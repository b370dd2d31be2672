#include "gui/plane/painting/StaticLayer.h"

#include "gui/plane/LumoComponent.h"
#include "gui/plane/painting/Drawing.h"
#include "gui/plane/painting/GridPainter.h"
#include "gui/plane/painting/SpeakerPainter.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

namespace
{

/** Transforms image pixels to component pixels. */
juce::AffineTransform PlacementOf (const BackgroundImage& picture, const ViewTransform& view)
{
    const int halfWidth = view.width / 2; // for both axes: the image is placed relative to the width
    const int pixels = static_cast<int> (static_cast<float> (halfWidth) * view.zoom) - view.Margin() / 2 - 1;
    const auto scale = static_cast<float> (pixels);
    const auto shift = [&] (float offset, int extent) {
        return static_cast<float> (halfWidth) - std::trunc ((offset + 1) * scale * static_cast<float> (extent));
    };
    return juce::AffineTransform::rotation (picture.angle)
        .scaled (2 * scale * picture.scale)
        .translated (shift (picture.xOffset, picture.scaledWidth), shift (picture.yOffset, picture.scaledHeight));
}

/** Passes only the visible part to the renderer, whose arithmetic overflows at high zoom. */
void DrawBackgroundImage (juce::Graphics& g, const Surface& surface)
{
    const auto& picture = surface.backgroundImage;
    if (! picture.visible || picture.image.isNull())
        return;
    const auto placement = PlacementOf (picture, surface.viewTransform);
    if (placement.isSingularity())
        return;
    const auto shown = BoundsOf (surface.viewTransform).toFloat().transformedBy (placement.inverted()).expanded (2);
    const auto whole = picture.image.getBounds();
    const auto part = shown.getIntersection (whole.toFloat()).getSmallestIntegerContainer().getIntersection (whole);
    if (part.isEmpty())
        return;
    g.setImageResamplingQuality (static_cast<juce::Graphics::ResamplingQuality> (picture.quality));
    g.setOpacity (picture.opacity);
    g.drawImageTransformed (picture.image.getClippedImage (part),
                            juce::AffineTransform::translation (part.getPosition()).followedBy (placement));
}

void DrawOriginAndAxes (juce::Graphics& g, const Surface& surface)
{
    const auto& axis = surface.axis;
    const auto origin = OnScreen (surface.viewTransform, {});
    if (axis.originVisible) {
        const auto disc = SquareAt (origin, static_cast<float> (surface.viewTransform.originSize));
        g.setColour (axis.colour.withAlpha (0.5f));
        g.fillEllipse (disc);
        g.setColour (axis.colour);
        g.drawEllipse (disc, 1.0f);
    }
    g.setColour (axis.colour);
    if (axis.visible) {
        const auto x = std::trunc (origin.x), y = std::trunc (origin.y);
        g.drawLine (x, 0, x, static_cast<float> (surface.viewTransform.height), 2.0f);
        g.drawLine (0, y, static_cast<float> (surface.viewTransform.width), y, 2.0f);
    }
}

void DrawDirections (juce::Graphics& g, const Surface& surface)
{
    using juce::Justification;
    if (! surface.axis.labelVisible)
        return;
    const auto& view = surface.viewTransform;
    const juce::Rectangle<int> area (2, 2, view.width - 2, view.height - 2);
    g.setColour (surface.axis.colour);
    g.setFont (lumo::Component::MakeFont (14.0f));
    g.drawText (view.topView ? "front" : "top", area, Justification::centredTop);
    g.drawText (view.topView ? "back" : "down", area, Justification::centredBottom);
    g.drawText ("left", area, Justification::centredLeft);
    g.drawText ("right", area, Justification::centredRight);
}

void DrawLegend (juce::Graphics& g, const Surface& surface)
{
    if (! surface.legend.visible)
        return;
    const auto& view = surface.viewTransform;
    const auto width = static_cast<float> (view.width);
    const float y = 0.97f * static_cast<float> (view.height);
    const juce::Point<float> left (0.75f * width, y), middle (0.85f * width, y), right (0.95f * width, y);
    g.setColour (juce::Colours::white.withAlpha (0.5f));
    g.drawArrow ({ middle, right }, 2.0f, 5.0f, 5.0f);
    g.drawArrow ({ middle, left }, 2.0f, 5.0f, 5.0f);

    const float metres = view.ToWorld ({ right.x, right.y }).x - view.ToWorld ({ left.x, left.y }).x;
    const auto text = MetresText (metres, 2) + " m";
    const auto font = lumo::Component::MakeFont (16.0f);
    const auto side = 6.0f * static_cast<float> (view.markerSize);
    g.setFont (font);
    DrawTextAt (g, text, { middle.x, y - 8.0f }, std::max (side, font.getStringWidthFloat (text) + 2)); // never cut
}

void DrawAreas (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto& view = surface.viewTransform;
    if (! surface.options.areasVisible || ! view.topView)
        return;
    for (const auto& area : scene.areas) {
        if (! area.visible || area.screenPath.isEmpty())
            continue;
        g.setColour (area.colour);
        g.fillPath (area.screenPath);
        g.setColour (area.colour.brighter (0.4f));
        g.strokePath (area.screenPath, juce::PathStrokeType (2.0f));
        if (area.label.isEmpty())
            continue;
        g.setColour (area.colour);
        g.setFont (
            lumo::Component::MakeFont (juce::jlimit (12.0f, 20.0f, static_cast<float> (view.markerSize) * 0.5f)));
        DrawTextAt (g, area.label, area.labelPosition, 6.0f * static_cast<float> (view.markerSize));
    }
}

void DrawAnchors (juce::Graphics& g, const Surface& surface)
{
    if (! surface.anchors.anchorsVisible)
        return;
    const auto& view = surface.viewTransform;
    const float half = 0.5f * static_cast<float> (view.PixelSize (view.markerProportion));
    const float side = 3.0f * std::trunc (half);
    g.setColour (juce::Colours::black);
    g.setFont (lumo::Component::MakeFont (juce::jlimit (10.0f, 20.0f, half)));
    for (const auto& anchor : surface.anchors.items) {
        const auto at = anchor.screenPosition;
        if (! IsWanted (g, at, 7 * half)) // the name is at the lower right
            continue;
        g.drawVerticalLine (static_cast<int> (at.x), at.y - half, at.y + half);
        g.drawHorizontalLine (static_cast<int> (at.y), at.x - half, at.x + half);
        if (surface.anchors.anchorsLabelVisible)
            DrawTextAt (g, anchor.name, at + juce::Point<float> (side, side) * 0.5f, side);
    }
}

void DrawShoebox (juce::Graphics& g, const Surface& surface)
{
    const auto& shoebox = surface.shoebox;
    const auto& view = surface.viewTransform;
    if (! shoebox.visible || ! view.topView || shoebox.corners.size() != 4)
        return;
    const auto first = OnScreen (view, shoebox.corners[0]);
    const auto extent = OnScreen (view, shoebox.corners[2]) - first;
    g.setColour (juce::Colours::black);
    g.drawRect (juce::Rectangle<float> (first.x, first.y, std::abs (extent.x), std::abs (extent.y)), 1.0f);
}

}

void DrawBackground (juce::Graphics& g, const Surface& surface)
{
    g.fillAll (surface.background.colour);
    g.setColour (juce::Colour (0xFF494949));
    g.drawRect (BoundsOf (surface.viewTransform), 1);
}

void DrawStaticLayer (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    DrawBackground (g, surface);
    if (surface.viewTransform.topView)
        DrawBackgroundImage (g, surface);
    DrawGrid (g, surface);
    DrawAngularDivisions (g, surface);
    DrawOriginAndAxes (g, surface);
    DrawDirections (g, surface);
    DrawLegend (g, surface);
    DrawAreas (g, surface, scene);
    DrawAnchors (g, surface);
    DrawShoebox (g, surface);
    DrawSpeakerProjection (g, surface, scene);
    DrawTriangulation (g, surface, scene);
    DrawHull (g, surface, scene);
    DrawSpeakersRadius (g, surface, scene);
    DrawSpeakers (g, surface, scene);
    if (! surface.listener.editable)
        DrawListener (g, surface);
}

}
