#include "gui/plane/painting/Foreground.h"

#include "gui/plane/painting/Drawing.h"
#include "gui/plane/painting/Extents.h"
#include "gui/scene/Limits.h"

#include <algorithm>
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

template <typename Objects>
void DrawMetersOf (juce::Graphics& g, const Objects& objects, const ViewTransform& view)
{
    for (const auto& object : objects)
        if (const auto box = MeterOf (object, view); object.visible && g.clipRegionIntersects (WithRoom (box)))
            DrawMeter (g, box, object.level);
}

void DrawMeters (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    if (surface.options.speakersLevelsVisible)
        DrawMetersOf (g, scene.speakers, surface.viewTransform);
    if (surface.options.sourcesLevelsVisible)
        DrawMetersOf (g, scene.sources, surface.viewTransform);
}

// ---- Sources

/** With chords at most a twentieth of a screen pixel off the arc: JUCE's own arcs always have the same number of
    chords, twice as many as a fan of the usual size needs. */
juce::Path FanOf (const Source& source, const Surface& surface)
{
    constexpr float deviation = 0.05f;
    const auto at = source.screenPosition;
    const float radius = ApertureRadius (source, surface.viewTransform);
    const float longest = std::sqrt (8 * deviation / (radius * surface.pixels.scale));
    const auto chords = static_cast<int> (std::ceil (2 * source.aperture / longest));
    const float first = RotationOfFan (source) + source.aperture,
                step = -2 * source.aperture / static_cast<float> (chords);
    juce::Path fan;
    fan.preallocateSpace (3 * chords + 8);
    fan.startNewSubPath (at);
    for (int i = 0; i <= chords; ++i)
        fan.lineTo (at.getPointOnCircumference (radius, first + static_cast<float> (i) * step));
    fan.closeSubPath();
    return fan;
}

void DrawFans (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    for (const auto& source : scene.sources) {
        if (! g.clipRegionIntersects (ExtentOfFan (source, surface)))
            continue;
        const auto fan = FanOf (source, surface);
        g.setColour (source.apertureColour);
        g.fillPath (fan);
        g.strokePath (fan, juce::PathStrokeType (2.0f));
    }
}

void DrawSelection (juce::Graphics& g, const Source& source, float size, const Surface& surface)
{
    g.setColour (juce::Colours::white);
    g.drawRect (SquareAt (source.screenPosition, size), 2.0f);
    if (source.coordinatesVisible)
        DrawCoordinates (g, source.position, CoordinatesOf (source, surface.viewTransform), juce::Colours::black,
                         surface);
}

void DrawSources (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    for (const auto& source : scene.sources) {
        if (! g.clipRegionIntersects (ExtentOfBody (source, surface)))
            continue;
        const float size = SizeOf (source, surface.viewTransform);
        DrawIcon (g, source.Icon(), source.screenPosition, size, surface);
        if (source.selected)
            DrawSelection (g, source, size, surface);
        if (! source.labelVisible)
            continue;
        g.setColour (source.labelColour);
        source.label.Draw (g, source.screenPosition, LabelStyle (size));
    }
}

/** For a single selected source. */
void DrawRadiusCircle (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto isSelected = [] (const Source& source) { return source.selected; };
    const auto& sources = scene.sources;
    if (! surface.options.radiusVisible || std::count_if (sources.begin(), sources.end(), isSelected) != 1)
        return;
    const auto& source = *std::find_if (sources.begin(), sources.end(), isSelected);
    g.setColour (juce::Colour (0x9E4444FF));
    g.fillEllipse (RadiusOf (source, surface.viewTransform));
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
    DrawFans (g, surface, scene);
    DrawSources (g, surface, scene);
    DrawRadiusCircle (g, surface, scene);
    DrawLasso (g, surface.lasso);
}

}
