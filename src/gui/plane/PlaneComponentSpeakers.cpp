#include "gui/plane/Colours.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/plane/Text.h"
#include "gui/plane/painting/Extents.h"
#include "gui/scene/Finite.h"
#include "gui/scene/Limits.h"
#include "gui/scene/Positions.h"

namespace lumo
{

using namespace Plane;

Speaker* PlaneComponent::SpeakerAt (std::size_t index)
{
    return index < scene.speakers.size() ? &scene.speakers[index] : nullptr;
}

template <typename Change>
void PlaneComponent::ChangeSpeaker (std::size_t index, Change&& change)
{
    if (auto* speaker = SpeakerAt (index)) {
        const auto before = PartOfSpeaker (index);
        change (*speaker);
        const auto after = PartOfSpeaker (index);
        MarkStaticParts (before, after);
        RepaintParts (before, after);
        if (surface.options.speakersProjectionVisible) { // the projected speaker changes too
            MarkStaticLayerDirty();
            repaint();
        }
    }
}

void PlaneComponent::SetNumSpeakers (std::size_t number, bool notify)
{
    const auto before = scene.speakers.size();
    number = std::min (number, Scene::largestCount);
    if (number == before)
        return;
    elements.clear();
    while (scene.speakers.size() > number)
        scene.speakers.erase (scene.speakers.size() - 1);
    for (auto i = before; i < number; ++i)
        scene.speakers.push_back (Speaker (static_cast<int> (i) + 1));
    if (scene.selectedSpeaker >= static_cast<int> (number))
        scene.selectedSpeaker = Scene::none;
    surface.options.speakersEditable = scene.AllSpeakersEditable();
    SpeakersMoved();
    UpdateScreenPositions();
    MarkStaticLayerDirty();
    if (notify)
        NotifyOptionsChanged();
    repaint();
}

// ---- Positions

const qel::Point3& PlaneComponent::GetSpeakerPosition (std::size_t index) const
{
    return index < scene.speakers.size() ? scene.speakers[index].position : PlaneBase::GetSpeakerPosition (index);
}

void PlaneComponent::SetSpeakerPosition (std::size_t index, const qel::Point3& position, bool notify)
{
    if (StoreSpeakerPosition (index, position))
        FinishSpeakersMove (notify);
}

void PlaneComponent::SetSpeakersPositions (const qel::Point3Array& positions, bool notify)
{
    for (std::size_t i = 0; i < positions.size(); ++i)
        std::ignore = StoreSpeakerPosition (i, positions[i]);
    FinishSpeakersMove (notify);
}

bool PlaneComponent::StoreSpeakerPosition (std::size_t index, const qel::Point3& position)
{
    auto* speaker = SpeakerAt (index);
    if (speaker == nullptr || ! qel::isFinite (position))
        return false;
    const auto before = PartOfSpeaker (index);
    const bool moves = ! (speaker->position == position);
    speaker->position = position;
    speaker->screenPosition = OnScreen (surface.viewTransform, position);
    if (moves && ! ShowsSpeakerGeometry()) {
        const auto after = PartOfSpeaker (index);
        MarkStaticParts (before, after);
        RepaintMove (before, after);
    }
    areaMonitor.ReportSpeaker (index);
    return true;
}

void PlaneComponent::FinishSpeakersMove (bool notify)
{
    SpeakersMoved();
    if (notify)
        Notify (
            [positions = PositionsOf (scene.speakers)] (PlaneListener& l) { l.SpeakersPositionsChanged (positions); });
    if (! ShowsSpeakerGeometry())
        return; // what moved has already been invalidated
    MarkStaticLayerDirty();
    if (SettersRepaint())
        repaint();
}

bool PlaneComponent::ShowsSpeakerGeometry() const noexcept
{
    const auto& options = surface.options;
    return options.hullVisible || options.triangulationVisible || options.speakersRadiusVisible ||
           options.speakersProjectionVisible;
}

void PlaneComponent::SpeakersMoved()
{
    scene.speakerGeometry.SpeakersMoved();
    if (surface.options.speakersRadiusVisible)
        scene.speakerGeometry.UpdateRadius (scene.speakers);
}

// ---- Appearance

void PlaneComponent::SetSpeakerName (std::size_t index, const qel::String& name, bool notify)
{
    if (SpeakerAt (index) == nullptr)
        return;
    ChangeSpeaker (index, [&] (Speaker& s) { s.name.Set (FromCore (name)); });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SpeakerNameChanged (index, name); });
}

void PlaneComponent::SetAllSpeakersName (const qel::String& name, bool notify)
{
    for (std::size_t i = 0; i < scene.speakers.size(); ++i)
        SetSpeakerName (i, name, notify);
}

void PlaneComponent::SetSpeakerNameVisible (std::size_t index, bool visible)
{
    ChangeSpeaker (index, [&] (Speaker& s) { s.nameVisible = visible; });
}

void PlaneComponent::SetAllSpeakerNamesVisible (bool visible)
{
    for (std::size_t i = 0; i < scene.speakers.size(); ++i)
        SetSpeakerNameVisible (i, visible);
}

void PlaneComponent::SetSpeakerColour (std::size_t index, float red, float green, float blue, float alpha, bool notify)
{
    const auto colour = ColourFrom (red, green, blue, alpha);
    if (! colour || SpeakerAt (index) == nullptr)
        return;
    ChangeSpeaker (index, [&] (Speaker& s) { s.colour = *colour; });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SpeakerColourChanged (index, red, green, blue, alpha); });
}

void PlaneComponent::SetSpeakerVisible (std::size_t index, bool visible, bool notify)
{
    if (SpeakerAt (index) == nullptr)
        return;
    ChangeSpeaker (index, [&] (Speaker& s) { s.visible = visible; });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.SpeakerVisibleChanged (index, visible); });
}

void PlaneComponent::SetAllSpeakersVisible (bool visible, bool notify)
{
    for (std::size_t i = 0; i < scene.speakers.size(); ++i)
        ChangeSpeaker (i, [&] (Speaker& s) { s.visible = visible; });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.AllSpeakersVisibleChanged (visible); });
}

void PlaneComponent::SetSpeakersVisible (bool visible)
{
    if (! surface.listener.headphonesVisible)
        SetOption (surface.options.speakersVisible, visible);
}

void PlaneComponent::SetSpeakerEditable (std::size_t index, bool editable, bool notify)
{
    ChangeSpeaker (index, [&] (Speaker& s) { s.editable = editable; });
    surface.options.speakersEditable = scene.AllSpeakersEditable();
    if (notify)
        NotifyOptionsChanged();
}

void PlaneComponent::SetSpeakersEditable (bool editable, bool notify)
{
    for (auto& speaker : scene.speakers)
        speaker.editable = editable;
    surface.options.speakersEditable = scene.AllSpeakersEditable();
    if (notify)
        NotifyOptionsChanged();
    repaint();
}

void PlaneComponent::SetSpeakerProportion (std::size_t index, float proportion)
{
    if (AreFinite (proportion))
        ChangeSpeaker (index, [&] (Speaker& s) { s.proportion = ClampProportion (proportion); });
}

void PlaneComponent::SetAllSpeakersProportion (float proportion)
{
    for (std::size_t i = 0; i < scene.speakers.size(); ++i)
        SetSpeakerProportion (i, proportion);
}

void PlaneComponent::SetSpeakerLevel (std::size_t index, float decibels)
{
    auto* speaker = SpeakerAt (index);
    if (speaker == nullptr || ! StoreLevel (speaker->level, decibels))
        return;
    if (const auto meter = WithRoom (MeterOf (*speaker, surface.viewTransform)); surface.options.speakersLevelsVisible)
        RepaintMove (meter, meter);
}

void PlaneComponent::SetSpeakersLevels (const qel::Vector<float>& decibels)
{
    for (std::size_t i = 0; i < decibels.size(); ++i)
        SetSpeakerLevel (i, decibels[i]);
}

void PlaneComponent::SetHullVisible (bool visible) { SetOption (surface.options.hullVisible, visible); }
void PlaneComponent::SetTriangulationVisible (bool visible)
{
    SetOption (surface.options.triangulationVisible, visible);
}

void PlaneComponent::SetSpeakersRadiusVisible (bool visible)
{
    if (visible)
        scene.speakerGeometry.UpdateRadius (scene.speakers);
    SetOption (surface.options.speakersRadiusVisible, visible);
}

void PlaneComponent::SetSpeakersProjectionVisible (bool visible)
{
    SetOption (surface.options.speakersProjectionVisible, visible);
}

}
