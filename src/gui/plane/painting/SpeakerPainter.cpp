#include "gui/plane/painting/SpeakerPainter.h"

#include "gui/plane/painting/Drawing.h"

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
    g.setFont (juce::Font (juce::jlimit (12.0f, 20.0f, size * 0.5f), juce::Font::bold));
    DrawTextAt (g, speaker.name, at, 6 * size);
}

void DrawSelection (juce::Graphics& g, const Speaker& speaker, float size, const Surface& surface)
{
    const auto at = speaker.screenPosition;
    g.setColour (juce::Colours::red);
    g.drawRoundedRectangle (SquareAt (at, size), 2.0f, 2.0f);
    g.setColour (juce::Colours::white);
    const auto x = static_cast<int> (at.x), y = static_cast<int> (at.y), half = static_cast<int> (size * 0.5f);
    DrawCoordinates (g, speaker.position, { x - 50, y + half - 10 }, surface);
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
        const auto size = static_cast<float> (view.PixelSize (speaker.proportion));
        const auto at = view.ToScreen (points[i]);
        if (! speaker.visible || ! IsObjectInSight (view, at, size))
            continue;
        DrawIcon (g, *scene.projectionIcon, at, size);
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
    path.startNewSubPath (surface.viewTransform.ToScreen (hull[0]));
    for (std::size_t i = 1; i < hull.size(); ++i)
        path.lineTo (surface.viewTransform.ToScreen (hull[i]));
    path.closeSubPath();
    StrokeInBlack (g, path);
}

void DrawSpeakersRadius (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    if (! surface.options.speakersRadiusVisible)
        return;
    const auto& view = surface.viewTransform;
    const auto origin = view.ToScreen ({});
    const float diameter = origin.getDistanceFrom (view.ToScreen ({ 2 * scene.speakerGeometry.Radius(), 0, 0 }));
    g.setColour (juce::Colours::black);
    g.drawEllipse (SquareAt (origin, diameter), 1.0f);
}

void DrawSpeakers (juce::Graphics& g, const Surface& surface, const Scene& scene)
{
    if (! surface.options.speakersVisible)
        return;
    for (std::size_t i = 0; i < scene.speakers.size(); ++i) {
        const auto& speaker = scene.speakers[i];
        const auto size = static_cast<float> (surface.viewTransform.PixelSize (speaker.proportion));
        if (! speaker.visible || ! IsObjectInSight (surface.viewTransform, speaker.screenPosition, size))
            continue;
        DrawIcon (g, speaker.Icon(), speaker.screenPosition, size);
        if (scene.selectedSpeaker == static_cast<int> (i))
            DrawSelection (g, speaker, size, surface);
        DrawName (g, speaker, speaker.screenPosition, size);
    }
}

}
