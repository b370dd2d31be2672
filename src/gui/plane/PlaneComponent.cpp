#include "gui/plane/PlaneComponent.h"

#include "geometry/OrvaneDspLayouts.h"
#include "gui/plane/painting/Extents.h"
#include "gui/plane/painting/Foreground.h"
#include "gui/plane/painting/StaticLayer.h"
#include "gui/scene/Finite.h"
#include "gui/scene/Positions.h"

#include <algorithm>

namespace lumo
{

using namespace Plane;

PlaneComponent::PlaneComponent (std::size_t numSources, std::size_t numSpeakers, int size) : PlaneBase ("Plane")
{
    setWantsKeyboardFocus (true);
    setTitle ("Scene");
    setHelpText ("Tab selects the next source, alt and a cursor key move it, shift and tab or ctrl and tab leave.");
    setFocusContainerType (FocusContainerType::focusContainer); // for the objects on it
    const int side = juce::jlimit (100, 1600, size);
    setSize (side, side);

    SetNumSources (numSources, false);
    const auto ring = qel::ringLayout (scene.sources.size());
    for (std::size_t i = 0; i < ring.size(); ++i)
        SetSourcePosition (i, ring[i], false);
    SetNumSpeakers (numSpeakers, false);
    SetSpeakersPositions (qel::defaultSpeakerLayout (scene.speakers.size()), false);
    SetSpeakersEditable (PlaneOptions().speakersEditable, true);
}

PlaneComponent::~PlaneComponent() = default;

void PlaneComponent::UpdateScreenPositions()
{
    const auto& view = surface.viewTransform;
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        scene.sources[i].screenPosition = OnScreen (view, scene.sources[i].position);
    for (auto& speaker : scene.speakers)
        speaker.screenPosition = OnScreen (view, speaker.position);
    for (auto& area : scene.areas)
        area.UpdateScreen (view);
    PlaneBase::UpdateScreenPositions();
    areaMonitor.ReportSources();
    areaMonitor.ReportListener();
}

// ---- Painting

void PlaneComponent::paint (juce::Graphics& g)
{
    BeginPaintTiming();
    BeginFrame (g);
    const auto parts = changedParts.Take();
    if (autoZoomRequested)
        AutoZoomBeforePainting (g);
    if (surface.viewerVisible) {
        UpdateGeometryBeforePainting();
        DrawParts (g, parts);
    } else {
        DrawBackground (g, surface);
    }
    EndPaintTiming();
}

/** Draws each part separately: clipping every line and letter by several rectangles costs more than it saves. Parts may
    overlap by a pixel, so the background must be opaque. */
void PlaneComponent::DrawParts (juce::Graphics& g, const juce::RectangleList<int>& parts)
{
    if (isOpaque() && parts.getNumRectangles() > 1)
        for (const auto& part : parts) {
            {
                const juce::Graphics::ScopedSaveState state (g);
                if (g.reduceClipRegion (part))
                    DrawLayers (g);
            }
            g.excludeClipRegion (part);
        }
    if (! g.isClipEmpty())
        DrawLayers (g);
}

void PlaneComponent::DrawLayers (juce::Graphics& g)
{
    const auto drawStaticLayer = [this] (juce::Graphics& target) { DrawStaticLayer (target, surface, scene); };
    const auto colour = surface.background.colour;
    if (colour.getFloatAlpha() < 0.99f)
        drawStaticLayer (g);
    else
        staticCache.Draw (g, surface.pixels, colour.isOpaque(), drawStaticLayer);
    DrawForeground (g, surface, scene);
}

void PlaneComponent::parentHierarchyChanged()
{
    PlaneBase::parentHierarchyChanged();
    if (getPeer() == nullptr)
        changedParts.Reset();
}

// Changes needed before a frame are made here, so that the layers only read.

/** Calls with the plane: now, or shortly after on the message thread if OpenGL paints on another one. */
template <typename Call>
void PlaneComponent::TellFromPaint (Call&& call)
{
    if (! IsOpenGLEnabled())
        return call (*this);
    juce::MessageManager::callAsync ([call, plane = juce::Component::SafePointer (this)] {
        if (plane != nullptr)
            call (*plane);
    });
}

float PlaneComponent::FittingZoom() const
{
    const auto* farthest = scene.FarthestSource();
    return farthest == nullptr ? surface.viewTransform.zoom : zoom.Fitting (farthest->position);
}

void PlaneComponent::AutoZoomBeforePainting (const juce::Graphics& g)
{
    if (! StoreZoom (FittingZoom()))
        return;
    if (! g.getClipBounds().contains (getLocalBounds()))
        repaint();
    TellFromPaint ([] (PlaneComponent& plane) { plane.NotifyOptionsChanged(); });
}

void PlaneComponent::UpdateGeometryBeforePainting()
{
    auto& geometry = scene.speakerGeometry;
    if (surface.options.hullVisible)
        geometry.UpdateHull (scene.speakers);
    if (surface.options.triangulationVisible)
        geometry.UpdateTriangulation (scene.speakers);
    if (surface.options.speakersProjectionVisible && geometry.UpdateProjection (scene.speakers))
        TellFromPaint ([] (PlaneComponent& plane) {
            plane.Notify ([&points = plane.scene.speakerGeometry.Projection()] (PlaneListener& l) {
                l.SpeakersProjectionChanged (points);
            });
        });
}

juce::Rectangle<int> PlaneComponent::PartOf (const Source& source) const
{
    return changedParts.AreTheWhole() ? juce::Rectangle<int>() : ExtentOf (source, surface);
}

juce::Rectangle<int> PlaneComponent::PartOfSpeaker (std::size_t index) const
{
    if (changedParts.AreTheWhole() && staticCache.IsWhollyDirty())
        return {};
    return ExtentOf (scene.speakers[index], scene.selectedSpeaker == static_cast<int> (index), surface);
}

juce::Rectangle<int> PlaneComponent::PartOfListener() const
{
    if (changedParts.AreTheWhole() && staticCache.IsWhollyDirty())
        return {};
    return ExtentOf (surface.listener, surface);
}

void PlaneComponent::RepaintParts (juce::Rectangle<int> before, juce::Rectangle<int> after)
{
    if (changedParts.AreTheWhole())
        return; // already requested
    if (before.intersects (after)) {
        before = before.getUnion (after);
        after = {};
    }
    for (const auto& part : { before, after })
        if (const auto shown = part.getIntersection (getLocalBounds()); ! shown.isEmpty()) {
            changedParts.Add (shown);
            if (changedParts.AreTheWhole() || autoZoomRequested)
                return repaint();
            repaint (shown);
        }
}

void PlaneComponent::MarkStaticParts (juce::Rectangle<int> before, juce::Rectangle<int> after)
{
    staticCache.MarkDirty (before);
    staticCache.MarkDirty (after);
}

void PlaneComponent::RepaintMove (juce::Rectangle<int> before, juce::Rectangle<int> after)
{
    if (SettersRepaint())
        RepaintParts (before, after);
}

void PlaneComponent::RequestAutoZoom (bool on)
{
    if (autoZoomRequested == on)
        return;
    autoZoomRequested = on;
    repaint();
}

void PlaneComponent::AutoZoom (bool repaintNow)
{
    SetZoom (FittingZoom(), false);
    if (repaintNow)
        repaint();
}

// ---- Selection and constraints

void PlaneComponent::NotifySelectionChanged()
{
    Notify ([this, flags = scene.Selection()] (PlaneListener& l) { l.SelectionChanged (flags, *this); });
}

void PlaneComponent::SetSourceSelected (std::size_t index, bool selected, bool notify)
{
    auto* source = SourceAt (index);
    if (source == nullptr)
        return;
    source->selected = selected;
    repaint();
    if (notify)
        NotifySelectionChanged();
}

void PlaneComponent::SetSelection (const PlaneListener::Flags& selected, bool notify)
{
    selection.SetSources (selected);
    repaint();
    if (notify)
        NotifySelectionChanged();
}

void PlaneComponent::GetSelection (PlaneListener::Flags& selected) const { selected = scene.Selection(); }

bool PlaneComponent::IsSourceSelected (std::size_t index) const
{
    return index < scene.sources.size() && scene.sources[index].selected;
}

void PlaneComponent::SetCircularConstraint (bool on, bool repaintNow)
{
    surface.options.circularConstraint = on;
    MarkStaticLayerDirty();
    NotifyOptionsChanged();
    if (repaintNow)
        repaint();
}

void PlaneComponent::SetRadiusConstraint (bool on) { SetOption (surface.options.radiusConstraint, on); }

}
