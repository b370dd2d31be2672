#include "geometry/OrvaneDspRotation.h"
#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/Colours.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/plane/Text.h"
#include "gui/plane/painting/Extents.h"
#include "gui/scene/Finite.h"
#include "gui/scene/Limits.h"

namespace lumo
{

using namespace Plane;

Source* PlaneComponent::SourceAt (std::size_t index)
{
    return index < scene.sources.size() ? &scene.sources[index] : nullptr;
}

template <typename Change>
void PlaneComponent::ChangeSource (std::size_t index, Change&& change)
{
    if (auto* source = SourceAt (index)) {
        const auto before = PartOf (*source);
        change (*source);
        RepaintParts (before, PartOf (*source));
    }
}

void PlaneComponent::SetNumSources (std::size_t number, bool notify)
{
    const auto before = scene.sources.size();
    number = std::min (number, Scene::largestCount);
    if (number == before)
        return;
    elements.clear();
    while (scene.sources.size() > number)
        scene.sources.erase (scene.sources.size() - 1);
    for (auto i = before; i < number; ++i) {
        scene.sources.push_back (Source (static_cast<int> (i) + 1));
        FinishSourceMove (i, {}, false);
    }
    surface.options.sourcesEditable = scene.AllSourcesEditable();
    if (notify)
        UpdateScreenPositions();
    repaint();
}

// ---- Positions

const qel::Point3& PlaneComponent::GetSourcePosition (std::size_t index) const
{
    return index < scene.sources.size() ? scene.sources[index].position : PlaneBase::GetSourcePosition (index);
}

void PlaneComponent::SetSourcePosition (std::size_t index, const qel::Point3& position, bool notify)
{
    auto* source = SourceAt (index);
    if (source == nullptr || ! qel::isFinite (position))
        return;
    const auto before = PartOf (*source);
    const auto kept = qel::withDistance (position, qel::distance (source->position));
    const auto wanted = surface.options.radiusConstraint ? kept : position;
    if (qel::isFinite (wanted))
        source->position = wanted;
    FinishSourceMove (index, before, notify);
}

/** Common end of every move of a source, whether it moved or not. */
void PlaneComponent::FinishSourceMove (std::size_t index, juce::Rectangle<int> before, bool notify)
{
    auto& source = scene.sources[index];
    source.screenPosition = OnScreen (surface.viewTransform, source.position);
    const auto position = source.position;
    areaMonitor.ReportSource (index);
    UpdateSourceYaw (index, true);
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SourcePositionChanged (index, position); });
    if (const auto* moved = SourceAt (index)) // a listener may have changed the number of sources
        RepaintMove (before, PartOf (*moved));
}

void PlaneComponent::SetSourcesPositions (qel::Point3Array positions, bool notify) // a listener may change its origin
{
    for (std::size_t i = 0; i < std::min (positions.size(), scene.sources.size()); ++i)
        SetSourcePosition (i, positions[i], notify);
}

void PlaneComponent::SetSourceDistance (std::size_t index, float metres, bool notify)
{
    const auto* source = SourceAt (index);
    if (source == nullptr || ! AreFinite (metres))
        return;
    if (surface.options.radiusConstraint)
        FinishSourceMove (index, PartOf (*source), notify);
    else
        SetSourcePosition (index, qel::withDistance (source->position, metres), notify);
}

void PlaneComponent::SetSourceAzimuth (std::size_t index, float degrees, bool notify)
{
    if (const auto* source = SourceAt (index); source != nullptr && AreFinite (degrees))
        SetSourcePosition (index, qel::withAzimuth (source->position, degrees), notify);
}

void PlaneComponent::SetSourceElevation (std::size_t index, float degrees, bool notify)
{
    if (const auto* source = SourceAt (index); source != nullptr && AreFinite (degrees))
        SetSourcePosition (index, qel::withElevation (source->position, degrees), notify);
}

void PlaneComponent::RotateSource (std::size_t index, float yaw, float pitch, float roll, bool notify)
{
    const auto* source = SourceAt (index);
    if (source == nullptr || ! AreFinite (yaw, pitch, roll))
        return;
    const qel::Rotation rotate (roll * qel::radiansPerDegree, pitch * qel::radiansPerDegree,
                                yaw * qel::radiansPerDegree);
    const auto& pivot = surface.listener.position;
    SetSourcePosition (index, rotate (source->position - pivot) + pivot, notify);
}

void PlaneComponent::RotateAllSources (float yaw, float pitch, float roll, bool notify)
{
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        RotateSource (i, yaw, pitch, roll, notify);
}

// ---- Orientation and aperture

void PlaneComponent::UpdateSourceYaw (std::size_t index, bool report)
{
    auto* source = SourceAt (index);
    if (source == nullptr)
        return;
    const auto degrees = source->UpdateYaw (surface.listener.position);
    if (report && degrees)
        Notify ([&] (PlaneListener& l) { l.SourceYawChanged (index, *degrees); });
}

void PlaneComponent::SetSourceYaw (std::size_t index, float degrees, bool notify)
{
    auto* source = SourceAt (index);
    if (source == nullptr || ! AreFinite (degrees))
        return;
    const auto before = PartOf (*source);
    source->SetYaw (degrees);
    if (source->yawMode != Orientation::translation) // which would recompute and round it
        UpdateSourceYaw (index, false);
    if (notify)
        Notify ([&, yaw = source->YawDegrees()] (PlaneListener& l) { l.SourceYawChanged (index, yaw); });
    if (const auto* turned = SourceAt (index))
        RepaintMove (before, PartOf (*turned));
}

void PlaneComponent::SetSourceYawMode (std::size_t index, const qel::String& name)
{
    SetSourceYawMode (index, Orientation::ModeNamed (name));
}

void PlaneComponent::SetSourceYawMode (std::size_t index, Orientation::Mode mode)
{
    auto* source = SourceAt (index);
    if (source == nullptr || source->yawMode == mode)
        return;
    const auto before = PartOf (*source);
    source->yawMode = mode;
    UpdateSourceYaw (index, true);
    if (const auto* turned = SourceAt (index))
        RepaintParts (before, PartOf (*turned));
}

void PlaneComponent::SetSourceLookAt (std::size_t index, const qel::Point3& target, bool notify)
{
    const auto* source = SourceAt (index);
    if (source == nullptr || ! qel::isFinite (target))
        return;
    if (const auto yaw = Orientation::YawLookingAt (source->position, target))
        SetSourceYaw (index, *yaw, notify);
}

void PlaneComponent::SetSourceAperture (std::size_t index, float degrees, bool notify)
{
    const auto* source = SourceAt (index);
    if (source == nullptr || ! AreFinite (degrees))
        return;
    ChangeSource (index, [&] (Source& s) { s.SetApertureDegrees (degrees); });
    if (notify)
        Notify ([&, angle = source->ApertureDegrees()] (PlaneListener& l) { l.SourceApertureChanged (index, angle); });
}

void PlaneComponent::SetSourceApertureVisible (std::size_t index, bool visible)
{
    ChangeSource (index, [&] (Source& s) { s.apertureVisible = visible; });
}

void PlaneComponent::SetSourceApertureColour (std::size_t index, juce::Colour colour)
{
    ChangeSource (index, [&] (Source& s) { s.apertureColour = colour; });
}

void PlaneComponent::SetApertureVisible (bool visible) { SetOption (surface.options.apertureVisible, visible); }

void PlaneComponent::RestoreSource (std::size_t index, const SourcePose& pose)
{
    auto* source = SourceAt (index);
    if (source == nullptr || ! qel::isFinite (pose.position) || ! AreFinite (pose.yaw, pose.yawOffset, pose.aperture))
        return;
    const bool moves = source->position != pose.position, turns = source->yaw != pose.yaw;
    const bool opens = source->aperture != pose.aperture;
    source->position = pose.position;
    source->yaw = pose.yaw;
    source->yawOffset = pose.yawOffset;
    source->aperture = pose.aperture;
    source->screenPosition = OnScreen (surface.viewTransform, source->position);
    const float yaw = source->YawDegrees(), aperture = source->ApertureDegrees();
    if (moves) {
        areaMonitor.ReportSource (index);
        Notify ([&] (PlaneListener& l) { l.SourcePositionChanged (index, pose.position); });
    }
    if (turns)
        Notify ([&] (PlaneListener& l) { l.SourceYawChanged (index, yaw); });
    if (opens)
        Notify ([&] (PlaneListener& l) { l.SourceApertureChanged (index, aperture); });
    repaint();
}

// ---- Appearance

void PlaneComponent::SetSourceLabel (std::size_t index, const qel::String& label, bool notify)
{
    if (SourceAt (index) == nullptr)
        return;
    ChangeSource (index, [&] (Source& s) { s.label.Set (FromCore (label)); });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SourceLabelChanged (index, label); });
}

void PlaneComponent::SetAllSourcesLabel (const qel::String& label, bool notify)
{
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        SetSourceLabel (i, label, notify);
}

void PlaneComponent::SetSourceLabelVisible (std::size_t index, bool visible)
{
    ChangeSource (index, [&] (Source& s) { s.labelVisible = visible; });
}

void PlaneComponent::SetAllSourceLabelsVisible (bool visible)
{
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        SetSourceLabelVisible (i, visible);
}

void PlaneComponent::SetSourceLabelColour (std::size_t index, juce::Colour colour)
{
    ChangeSource (index, [&] (Source& s) { s.labelColour = colour; });
}

void PlaneComponent::SetSourceCoordinatesVisible (std::size_t index, bool visible)
{
    ChangeSource (index, [&] (Source& s) { s.coordinatesVisible = visible; });
}

void PlaneComponent::SetSourceColour (std::size_t index, float red, float green, float blue, float alpha, bool notify)
{
    const auto colour = ColourFrom (red, green, blue, alpha);
    if (! colour || SourceAt (index) == nullptr)
        return;
    ChangeSource (index, [&] (Source& s) { s.SetColour (*colour); });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SourceColourChanged (index, red, green, blue, alpha); });
}

void PlaneComponent::SetSourceVisible (std::size_t index, bool visible, bool notify)
{
    if (SourceAt (index) == nullptr)
        return;
    ChangeSource (index, [&] (Source& s) { s.visible = visible; });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SourceVisibleChanged (index, visible); });
}

void PlaneComponent::SetAllSourcesVisible (bool visible, bool notify)
{
    for (auto& source : scene.sources)
        source.visible = visible;
    surface.options.sourcesVisible = visible;
    repaint();
    if (! notify)
        return;
    Notify ([&] (PlaneListener& l) { l.AllSourcesVisibleChanged (visible); });
    NotifyOptionsChanged();
}

void PlaneComponent::SetSourceEditable (std::size_t index, bool editable, bool notify)
{
    ChangeSource (index, [&] (Source& s) { s.SetEditable (editable); });
    FinishSourcesEditable (notify);
}

void PlaneComponent::SetSourcesEditable (bool editable, bool notify)
{
    for (auto& source : scene.sources)
        source.SetEditable (editable);
    FinishSourcesEditable (notify);
}

void PlaneComponent::FinishSourcesEditable (bool notify)
{
    surface.options.sourcesEditable = scene.AllSourcesEditable();
    if (notify)
        NotifyOptionsChanged();
    repaint();
}

void PlaneComponent::SetSourceProportion (std::size_t index, float proportion)
{
    if (AreFinite (proportion))
        ChangeSource (index, [&] (Source& s) { s.SetProportion (proportion); });
}

void PlaneComponent::SetAllSourcesProportion (float proportion)
{
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        SetSourceProportion (i, proportion);
}

void PlaneComponent::SetSourceRadius (std::size_t index, float metres, bool notify)
{
    if (SourceAt (index) == nullptr || ! AreFinite (metres))
        return;
    ChangeSource (index, [&] (Source& s) { s.radius = metres; });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SourceRadiusChanged (index, metres); });
}

void PlaneComponent::SetAllSourcesRadius (float metres)
{
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        SetSourceRadius (i, metres, false);
}

void PlaneComponent::SetRadiusVisible (bool visible) { SetOption (surface.options.radiusVisible, visible); }

void PlaneComponent::SetSourceLevel (std::size_t index, float decibels)
{
    auto* source = SourceAt (index);
    if (source == nullptr || ! StoreLevel (source->level, decibels))
        return;
    if (const auto meter = WithRoom (MeterOf (*source, surface.viewTransform)); surface.options.sourcesLevelsVisible)
        RepaintMove (meter, meter);
}

void PlaneComponent::SetSourcesLevels (const qel::Vector<float>& decibels)
{
    for (std::size_t i = 0; i < decibels.size(); ++i)
        SetSourceLevel (i, decibels[i]);
}

}
