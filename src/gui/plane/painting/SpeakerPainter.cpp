#include "gui/plane/painting/SpeakerPainter.h"

#include "gui/plane/painting/Drawing.h"
#include "gui/plane/painting/Extents.h"

namespace lumo::Plane
{

namespace
{

void StrokeInBlack (juce::Graphics& g, const juce::Path& path)
{
    g.setColour (juce::Colours::black);
    g.strokePath (path, juce::PathStrokeType (2.0f));
}

void DrawName (juce::Graphics& g, const Speaker& speaker, juce::Point<float> at, float size)
{
    if (! speaker.nameVisible)
        return;
    g.setColour (juce::Colours::white);
    speaker.name.Draw (g, at, NameStyle (size));
}

void DrawSelection (juce::Graphics& g, const Speaker& speaker, float size, const Surface& surface)
{
    g.setColour (juce::Colours::red);
    g.drawRoundedRectangle (SquareAt (speaker.screenPosition, size), 2.0f, 2.0f);
    DrawCoordinates (g, speaker.position, CoordinatesOf (speaker, surface.viewTransform), juce::Colours::white,
                     surface);
}

}

void DrawSpeakerProjection (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto& view = surface.viewTransform;
    const auto& points = scene.speakerGeometry.Projection();
    if (! surface.options.speakersProjectionVisible)
        return;
    for (std::size_t i = 0; i < std::min (points.size(), scene.speakers.size()); ++i) {
        const auto& speaker = scene.speakers[i];
        const float size = SizeOf (speaker, view);
        const auto at = OnScreen (view, points[i]);
        if (! speaker.visible || ! IsWanted (g, at, 6 * size))
            continue;
        DrawIcon (g, { Icon::Kind::speaker, juce::Colours::grey }, at, size, surface);
        DrawName (g, speaker, at, size);
    }
}

void DrawTriangulation (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto& triangles = scene.speakerGeometry.Triangles();
    if (! surface.options.triangulationVisible || ! surface.viewTransform.topView || triangles.empty())
        return;
    juce::Path path;
    for (const auto& triangle : triangles) {
        path.startNewSubPath (scene.speakers[triangle[0]].screenPosition);
        path.lineTo (scene.speakers[triangle[1]].screenPosition);
        path.lineTo (scene.speakers[triangle[2]].screenPosition);
        path.closeSubPath();
    }
    StrokeInBlack (g, path);
}

void DrawHull (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    const auto& hull = scene.speakerGeometry.Hull();
    if (! surface.options.hullVisible || ! surface.viewTransform.topView || hull.size() < 3)
        return;
    juce::Path path;
    path.startNewSubPath (OnScreen (surface.viewTransform, hull[0]));
    for (std::size_t i = 1; i < hull.size(); ++i)
        path.lineTo (OnScreen (surface.viewTransform, hull[i]));
    path.closeSubPath();
    StrokeInBlack (g, path);
}

void DrawSpeakersRadius (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    if (! surface.options.speakersRadiusVisible)
        return;
    const auto& view = surface.viewTransform;
    const auto origin = OnScreen (view, {});
    const float diameter = origin.getDistanceFrom (OnScreen (view, { 2 * scene.speakerGeometry.Radius(), 0, 0 }));
    g.setColour (juce::Colours::black);
    g.drawEllipse (SquareAt (origin, diameter), 1.0f);
}

void DrawSpeakers (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    if (! surface.options.speakersVisible)
        return;
    for (std::size_t i = 0; i < scene.speakers.size(); ++i) {
        const auto& speaker = scene.speakers[i];
        const bool selected = scene.selectedSpeaker == static_cast<int> (i);
        if (! speaker.visible || ! g.clipRegionIntersects (ExtentOf (speaker, selected, surface)))
            continue;
        const float size = SizeOf (speaker, surface.viewTransform);
        DrawIcon (g, speaker.Icon(), speaker.screenPosition, size, surface);
        if (selected)
            DrawSelection (g, speaker, size, surface);
        DrawName (g, speaker, speaker.screenPosition, size);
    }
}

}
