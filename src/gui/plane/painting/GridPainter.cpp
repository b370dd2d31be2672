#include "gui/plane/painting/GridPainter.h"

#include "gui/plane/painting/Clipping.h"

#include <cmath>

namespace lumo::Plane
{

namespace
{

/** Includes a margin for the line width. */
juce::Rectangle<float> VisibleArea (const ViewTransform& view) { return BoundsOf (view).toFloat().expanded (2); }

/** The clip's part of it. Lines are still clipped to the visible area, so that separately painted parts match. */
juce::Rectangle<float> WantedArea (const juce::Graphics& g) { return g.getClipBounds().toFloat().expanded (2); }

/** Fills all dashes of a line at once: they do not overlap, and hundreds of fills per line would be slow. */
void Stroke (juce::Graphics& g, const juce::Path& path, bool dashed)
{
    const juce::PathStrokeType stroke (1.0f);
    if (! dashed)
        return g.strokePath (path, stroke);
    constexpr float lengths[] = { dashLength, dashLength };
    juce::Path dashes;
    stroke.createDashedStroke (dashes, path, lengths, 2);
    g.fillPath (dashes);
}

void DrawLine (juce::Graphics& g, juce::Line<double> line, const Surface& surface)
{
    const auto visible = VisiblePart (line, VisibleArea (surface.viewTransform));
    if (! visible || ! VisiblePart (line, WantedArea (g)))
        return;
    if (! surface.grid.dashed)
        return g.drawLine (*visible, 1.0f);
    juce::Path path;
    path.startNewSubPath (visible->getStart());
    path.lineTo (visible->getEnd());
    Stroke (g, path, true);
}

void DrawCircle (juce::Graphics& g, juce::Point<float> centre, double radius, const Surface& surface)
{
    if (! MeetsCircle (WantedArea (g), centre, radius))
        return;
    const auto circle = VisibleCircle (centre, radius, VisibleArea (surface.viewTransform));
    if (! circle.isEmpty())
        Stroke (g, circle, surface.grid.dashed);
}

void DrawCircles (juce::Graphics& g, juce::Point<float> origin, const Surface& surface)
{
    const auto& grid = surface.grid;
    const double scale = static_cast<double> (surface.viewTransform.GridScale());
    const auto r = static_cast<float> (scale);
    g.setColour (juce::Colour (0x3D808080));
    g.fillEllipse (origin.x - r, origin.y - r, 2 * r, 2 * r);
    g.setColour (grid.colour.withAlpha (0.5f));
    for (std::uint32_t i = 1; i <= grid.numLines; ++i)
        DrawCircle (g, origin, i * static_cast<double> (grid.spacing) * scale, surface);
}

void DrawSquares (juce::Graphics& g, juce::Point<double> o, const Surface& surface)
{
    const auto& grid = surface.grid;
    const double step = static_cast<double> (grid.spacing) * static_cast<double> (surface.viewTransform.GridScale());
    const double reach = grid.numLines * step;
    g.setColour (grid.colour.withAlpha (0.5f));
    for (std::uint32_t i = 1; i <= grid.numLines; ++i)
        for (const double r : { -(i * step), i * step }) {
            DrawLine (g, { o.x - reach, o.y + r, o.x + reach, o.y + r }, surface);
            DrawLine (g, { o.x + r, o.y - reach, o.x + r, o.y + reach }, surface);
        }
}

}

void DrawGrid (juce::Graphics& g, const Surface& surface)
{
    const auto origin = OnScreen (surface.viewTransform, {}).toInt();
    if (surface.grid.mode == Grid::circular)
        DrawCircles (g, origin.toFloat(), surface);
    else if (surface.grid.mode == Grid::square)
        DrawSquares (g, origin.toDouble(), surface);
}

void DrawAngularDivisions (juce::Graphics& g, const Surface& surface)
{
    const auto& grid = surface.grid;
    const auto& view = surface.viewTransform;
    if (! grid.angularDivisionsVisible || grid.numAngularDivisions == 0)
        return;
    g.setColour (grid.colour.withAlpha (0.5f));
    const auto origin = OnScreen (view, {}).toDouble();
    const double metres = std::max (1u, grid.numLines); // independent of the spacing
    const double reach = metres * static_cast<double> (view.pixelsPerMetre);
    const float division = 360.0f / static_cast<float> (grid.numAngularDivisions);
    for (std::uint32_t k = 0; k < grid.numAngularDivisions; ++k) {
        const float angle = juce::degreesToRadians (static_cast<float> (k) * division);
        const auto across = static_cast<double> (std::cos (angle)) * reach;
        const auto up = view.topView ? static_cast<double> (std::sin (angle)) * reach : 0.0;
        DrawLine (g, { origin, origin + juce::Point<double> (across, -up) }, surface);
    }
}

}
