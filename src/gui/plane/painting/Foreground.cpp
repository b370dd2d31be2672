#include "gui/plane/painting/Foreground.h"

#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/LumoComponent.h"
#include "gui/plane/objects/Limits.h"
#include "gui/plane/painting/Drawing.h"

#include <cmath>

namespace lumo::Plane
{

namespace
{

// ---- Level meters

juce::ColourGradient MeterColours (juce::Rectangle<float> box)
{
    juce::ColourGradient gradient (juce::Colour::fromFloatRGBA (0.25f, 1.0f, 0, 1.0f), box.getBottomLeft(),
                                   juce::Colour (0xFFF8241A), box.getTopLeft(), false);
    gradient.addColour (0.7391, juce::Colour (0xFFFADD19));
    gradient.addColour (0.8696, juce::Colour (0xFFF9941A));
    return gradient;
}

void DrawMeter (juce::Graphics& g, juce::Rectangle<float> box, float decibels)
{
    const float height = (decibels - leastLevel) / (greatestLevel - leastLevel) * box.getHeight();
    const auto rest = box.withHeight (box.getHeight() - height);
    g.setColour (juce::Colours::black.withAlpha (0.75f));
    g.fillRect (rest);
    if (decibels <= leastLevel)
        return;
    g.setGradientFill (MeterColours (box));
    g.fillRect (box.withTop (rest.getBottom()));
}

/** Objects of either kind: their meter stands at an offset from their middle. */
template <typename Object>
void DrawMeterOf (juce::Graphics& g, const Object& object, float size, float xOffset, const ViewTransform& view)
{
    const auto at = object.screenPosition;
    if (object.visible && IsInSight (view, at, 2 * size + 20))
        DrawMeter (g, { at.x + xOffset, at.y - size * 0.5f, 5.0f, size }, object.level);
}

void DrawMeters (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto& view = surface.viewTransform;
    if (surface.options.speakersLevelsVisible)
        for (const auto& speaker : scene.speakers) {
            const auto size = static_cast<float> (view.PixelSize (speaker.proportion));
            DrawMeterOf (g, speaker, size, size * 0.5f - 2.5f, view);
        }
    if (surface.options.sourcesLevelsVisible)
        for (const auto& source : scene.sources) {
            const auto size = static_cast<float> (view.PixelSize (source.Proportion()));
            DrawMeterOf (g, source, size, size * 0.5f + 2.0f, view);
        }
}

// ---- Sources

void DrawApertures (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto& view = surface.viewTransform;
    if (! surface.options.apertureVisible || ! view.topView)
        return;
    for (const auto& source : scene.sources) {
        const auto radius = static_cast<float> (view.PixelSize (source.ApertureProportion()));
        const auto at = source.screenPosition;
        if (! source.apertureVisible || ! source.visible || source.yawMode == Orientation::follow ||
            ! IsInSight (view, at, 2 * radius + 4))
            continue;
        const float rotation = source.yawMode == Orientation::translation ? source.yawOffset : source.RelativeYaw();
        juce::Path fan;
        fan.startNewSubPath (at);
        fan.addCentredArc (at.x, at.y, radius, radius, rotation, source.aperture, -source.aperture);
        fan.closeSubPath();
        g.setColour (source.apertureColour);
        g.fillPath (fan);
        g.strokePath (fan, juce::PathStrokeType (2.0f));
    }
}

void DrawSelection (juce::Graphics& g, const Source& source, float size, const Surface& surface)
{
    const auto at = source.screenPosition;
    g.setColour (juce::Colours::white);
    g.drawRect (SquareAt (at, size), 2.0f);
    if (! source.coordinatesVisible)
        return;
    g.setColour (juce::Colours::black);
    const auto x = static_cast<int> (at.x), y = static_cast<int> (at.y), half = static_cast<int> (size * 0.5f);
    DrawCoordinates (g, source.position, { x - 50, y + half }, surface);
}

void DrawSources (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    for (const auto& source : scene.sources) {
        const auto size = static_cast<float> (surface.viewTransform.PixelSize (source.Proportion()));
        if (! source.visible || ! IsObjectInSight (surface.viewTransform, source.screenPosition, size))
            continue;
        DrawIcon (g, source.Icon(), source.screenPosition, size);
        if (source.selected)
            DrawSelection (g, source, size, surface);
        if (! source.labelVisible)
            continue;
        g.setColour (source.labelColour);
        g.setFont (lumo::Component::MakeFont (juce::jlimit (12.0f, 20.0f, size * 0.5f)));
        DrawTextAt (g, source.label, source.screenPosition, 6 * size);
    }
}

/** For the one source that is selected. */
void DrawRadiusCircle (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto isSelected = [] (const Source& source) { return source.selected; };
    const auto& sources = scene.sources;
    if (! surface.options.radiusVisible || std::count_if (sources.begin(), sources.end(), isSelected) != 1)
        return;
    const auto& source = *std::find_if (sources.begin(), sources.end(), isSelected);
    const auto& view = surface.viewTransform;
    const float metre =
        std::trunc (view.halfWidth * view.zoom) - std::trunc (static_cast<float> (view.Margin()) * 0.5f + 1);
    g.setColour (juce::Colour (0x9E4444FF));
    g.fillEllipse (SquareAt (source.screenPosition, juce::jlimit (0.0f, 1.0e6f, 2 * source.radius * metre)));
}

void DrawLasso (juce::Graphics& g, const Lasso& lasso)
{
    if (! lasso.active)
        return;
    g.setColour (juce::Colours::white.withAlpha (0.75f));
    g.drawRect (lasso.area, 1.0f);
    g.setColour (juce::Colours::white.withAlpha (0.15f));
    g.fillRect (lasso.area);
}

}

void DrawForeground (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    if (surface.listener.editable)
        DrawListener (g, surface);
    DrawMeters (g, surface, scene);
    DrawApertures (g, surface, scene);
    DrawSources (g, surface, scene);
    DrawRadiusCircle (g, surface, scene);
    DrawLasso (g, surface.lasso);
}

}
