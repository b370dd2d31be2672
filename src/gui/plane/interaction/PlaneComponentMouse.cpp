#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/plane/interaction/HitTest.h"
#include "gui/plane/interaction/PlaneMenu.h"
#include "gui/plane/objects/Positions.h"

#include <algorithm>
#include <cmath>

namespace lumo
{

using namespace Plane;

namespace
{

constexpr float degreesPerWheel = 20.0f;
constexpr float octavesPerWheel = 0.15f;

float AngleInView (const qel::Point3& point, bool topView)
{
    return topView ? std::atan2 (point.y, point.x) : std::atan2 (point.z, point.x);
}

/** The view may have changed since the last step: the hidden axis is kept. */
qel::Point3 StepInView (const qel::Point3& from, const qel::Point3& to, bool topView)
{
    auto step = to - from;
    (topView ? step.z : step.y) = 0;
    return step;
}

qel::Point3 Turned (const qel::Point3& p, float angle, bool topView)
{
    if (angle == 0.0f)
        return p;
    const float c = std::cos (angle), s = std::sin (angle);
    if (topView)
        return { p.x * c - p.y * s, p.y * c + p.x * s, p.z };
    return { p.x * c - p.z * s, p.y, p.z * c + p.x * s };
}

}

// ---- Buttons

void PlaneComponent::mouseDown (const juce::MouseEvent& event)
{
    juce::PopupMenu::dismissAllActiveMenus();
    const juce::MessageManagerLock lock;
    if (event.mods.isRightButtonDown() && ! surface.options.rightClickLocked)
        return ShowPlaneMenu (*this);
    if (! event.mods.isLeftButtonDown())
        return;

    pointer.lassoOrigin = event.position;
    pointer.last = surface.viewTransform.ToWorld (event.position);
    Notify ([] (PlaneListener& l) { l.PointerButtonChanged (true); });
    Notify ([this] (PlaneListener& l) { l.PointerMoved (pointer.last); });

    const int speakerBefore = scene.selectedSpeaker;
    SelectUnder (event.position, event.mods.isShiftDown());
    NotifySpeakerSelection (speakerBefore);
    BeginLassoOrDrag();
    NotifySelectionChanged();
    repaint();
}

// ---- Selection without the mouse

template <typename Select>
void PlaneComponent::SelectAlone (Select&& select)
{
    const int speakerBefore = scene.selectedSpeaker;
    DeselectAllSources();
    surface.options.listenerSelected = false;
    SelectSpeaker (Scene::none);
    select();
    NotifySpeakerSelection (speakerBefore);
    NotifySelectionChanged();
    repaint();
}

void PlaneComponent::SelectSourceAlone (std::size_t index)
{
    if (auto* source = SourceAt (index); source != nullptr && IsClickable (*source))
        SelectAlone ([&] { source->selected = true; });
}

void PlaneComponent::SelectSpeakerAlone (std::size_t index)
{
    if (const auto* speaker = SpeakerAt (index); speaker != nullptr && IsClickable (*speaker, surface))
        SelectAlone ([&] { SelectSpeaker (static_cast<int> (index)); });
}

void PlaneComponent::SelectListenerAlone()
{
    if (surface.listener.editable && surface.listener.visible)
        SelectAlone ([this] { surface.options.listenerSelected = true; });
}

void PlaneComponent::SelectNextSpeaker()
{
    const auto first = scene.speakers.begin() + (scene.selectedSpeaker + 1);
    const auto next = std::find_if (first, scene.speakers.end(),
                                    [this] (const Speaker& speaker) { return IsClickable (speaker, surface); });
    if (next != scene.speakers.end())
        SelectSpeakerAlone (static_cast<std::size_t> (next - scene.speakers.begin()));
    else if (scene.selectedSpeaker != Scene::none)
        SelectAlone ([] {});
}

/** Speakers take precedence over the listener, the listener over sources. */
void PlaneComponent::SelectUnder (juce::Point<float> pixels, bool toggle)
{
    surface.options.listenerSelected = false;
    SelectSpeaker (Scene::none);
    if (const int source = SourceUnder (pixels, surface, scene); source != Scene::none)
        PressSource (scene.sources[static_cast<std::size_t> (source)], toggle);
    else
        DeselectAllSources();
    if (IsListenerUnder (pixels, surface)) {
        DeselectAllSources();
        surface.options.listenerSelected = true;
    }
    if (const int speaker = SpeakerUnder (pixels, surface, scene); speaker != Scene::none) {
        DeselectAllSources();
        surface.options.listenerSelected = false;
        SelectSpeaker (speaker);
    }
}

void PlaneComponent::PressSource (Source& source, bool toggle)
{
    if (toggle) {
        source.selected = ! source.selected;
        return;
    }
    if (! source.selected)
        DeselectAllSources();
    source.selected = true;
}

void PlaneComponent::SelectSpeaker (int index)
{
    if (scene.selectedSpeaker == index)
        return;
    scene.selectedSpeaker = index;
    MarkStaticLayerDirty();
}

void PlaneComponent::NotifySpeakerSelection (int before)
{
    const int now = scene.selectedSpeaker;
    if (now == before)
        return;
    const auto tell = [this] (int index, bool selected) {
        if (index != Scene::none)
            Notify ([&] (PlaneListener& l) {
                l.SpeakerSelectionChanged (static_cast<std::size_t> (index), selected, *this);
            });
    };
    tell (now, true);
    tell (before, false);
}

void PlaneComponent::BeginLassoOrDrag()
{
    const bool anySelected =
        scene.AnySourceSelected() || surface.options.listenerSelected || scene.selectedSpeaker != Scene::none;
    surface.lasso = { {}, ! anySelected && scene.AnySourceEditable() };
    setMouseCursor (anySelected            ? juce::MouseCursor::DraggingHandCursor
                    : surface.lasso.active ? juce::MouseCursor::UpDownLeftRightResizeCursor
                                           : juce::MouseCursor::NormalCursor);
}

void PlaneComponent::mouseUp (const juce::MouseEvent&)
{
    surface.lasso.active = false;
    if (! isEnabled())
        return;
    Notify ([] (PlaneListener& l) { l.PointerButtonChanged (false); });
    setMouseCursor (juce::MouseCursor::NormalCursor);
    repaint();
}

void PlaneComponent::mouseDoubleClick (const juce::MouseEvent& event)
{
    juce::PopupMenu::dismissAllActiveMenus();
    const juce::MessageManagerLock lock;
    if (const int source = SourceUnder (event.position, surface, scene); source != Scene::none)
        Notify ([&] (PlaneListener& l) { l.SourceDoubleClicked (static_cast<std::size_t> (source), *this); });
}

// ---- Drags

void PlaneComponent::mouseDrag (const juce::MouseEvent& event)
{
    if (surface.lasso.active)
        return DragLasso (event.position);
    if (event.mods.isLeftButtonDown()) {
        const auto point = surface.viewTransform.ToWorld (event.position);
        if (surface.options.circularConstraint)
            TurnDragged (pointer.last, point);
        else
            MoveDragged (StepInView (pointer.last, point, surface.viewTransform.topView), event.mods);
        pointer.last = point;
        Notify ([&] (PlaneListener& l) { l.PointerMoved (point); });
    } else {
        setMouseCursor (juce::MouseCursor::NormalCursor);
    }
    if (! SettersRepaint()) // otherwise the setters have repainted what moved
        repaint();
}

void PlaneComponent::DragLasso (juce::Point<float> pixels)
{
    const auto& area = surface.lasso.area =
        juce::Rectangle<float> (pointer.lassoOrigin, getLocalBounds().toFloat().getConstrainedPoint (pixels));
    for (auto& source : scene.sources)
        if (source.Editable())
            source.selected = area.contains (source.screenPosition);
    NotifySelectionChanged();
    repaint();
}

template <typename Act>
void PlaneComponent::ForSelectedSources (Act&& act)
{
    for (std::size_t i = 0; i < scene.sources.size(); ++i)
        if (scene.sources[i].selected)
            act (i, scene.sources[i]);
}

template <typename Move>
void PlaneComponent::MoveSelectedSources (Move&& move)
{
    ForSelectedSources (
        [&] (std::size_t i, const Source& source) { SetSourcePosition (i, move (source.position), true); });
}

void PlaneComponent::TurnDragged (const qel::Point3& from, const qel::Point3& to)
{
    const bool topView = surface.viewTransform.topView;
    const float angle = AngleInView (to, topView) - AngleInView (from, topView);
    const auto turn = [&] (const qel::Point3& p) { return Turned (p, angle, topView); };

    if (auto* speaker = SelectedSpeaker(); speaker != nullptr && speaker->editable) {
        SetSpeakerPosition (static_cast<std::size_t> (scene.selectedSpeaker), turn (speaker->position), true);
    } else if (scene.AllSpeakersEditable() && ! scene.AnySourceEditable()) {
        auto positions = PositionsOf (scene.speakers);
        std::transform (positions.begin(), positions.end(), positions.begin(), turn);
        SetSpeakersPositions (positions, true);
    } else if (scene.AnySourceSelected() && scene.AnySourceEditable()) {
        MoveSelectedSources (turn);
    } else if (scene.AllSourcesEditable()) {
        for (std::size_t i = 0; i < scene.sources.size(); ++i)
            SetSourcePosition (i, turn (scene.sources[i].position), true);
    }
}

void PlaneComponent::MoveDragged (const qel::Point3& step, const juce::ModifierKeys& mods)
{
    if (auto* speaker = SelectedSpeaker(); speaker != nullptr && speaker->editable)
        SetSpeakerPosition (static_cast<std::size_t> (scene.selectedSpeaker), speaker->position + step, true);
    else if (surface.listener.editable && surface.options.listenerSelected)
        SetListenerPosition (surface.listener.position + step, true);
    else if (! mods.isShiftDown() && ! mods.isAltDown())
        MoveSelectedSources ([&] (const qel::Point3& p) { return p + step; });
}

void PlaneComponent::MoveSelection (const qel::Point3& step)
{
    if (! surface.options.circularConstraint)
        MoveDragged (step, {});
    else if (const auto* speaker = SelectedSpeaker(); speaker != nullptr && speaker->editable)
        TurnDragged (speaker->position, speaker->position + step);
    else if (const auto first = std::find_if (scene.sources.begin(), scene.sources.end(),
                                              [] (const Source& source) { return source.selected; });
             first != scene.sources.end() && scene.AnySourceEditable())
        TurnDragged (first->position, first->position + step);
    if (! SettersRepaint())
        repaint();
}

Speaker* PlaneComponent::SelectedSpeaker() { return SpeakerAt (static_cast<std::size_t> (scene.selectedSpeaker)); }

// ---- The wheel

void PlaneComponent::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    if (! TurnWheelOnSelection (wheel.deltaY, event.mods))
        SetZoom (surface.viewTransform.zoom * std::exp2 (octavesPerWheel * wheel.deltaY), true);
    repaint();
}

/** False if the wheel should zoom. */
bool PlaneComponent::TurnWheelOnSelection (float delta, const juce::ModifierKeys& mods)
{
    const bool ctrlAlone = mods.isCtrlDown() && ! mods.isAltDown();
    const bool altAlone = mods.isAltDown() && ! mods.isCtrlDown();
    const bool apertureVisible = surface.options.apertureVisible;
    auto& listener = surface.listener;

    if (! scene.AnySourceSelected() || ! scene.AnySourceEditable()) {
        if (! surface.options.listenerSelected || ! listener.editable || ! altAlone)
            return false;
        SetListenerYaw (listener.yaw * qel::degreesPerRadian + degreesPerWheel * delta, true);
    } else if (ctrlAlone && apertureVisible) {
        ForSelectedSources ([&] (std::size_t i, const Source& source) {
            SetSourceAperture (i, source.ApertureDegrees() + degreesPerWheel * delta, true);
        });
    } else if (altAlone && apertureVisible) {
        ForSelectedSources ([&] (std::size_t i, const Source& source) {
            SetSourceYaw (i, source.YawDegrees() + degreesPerWheel * delta, true);
        });
    } else if (mods.isShiftDown()) {
        MoveSelectedSources ([&] (const qel::Point3& p) { return p + qel::Point3{ 0, 0, delta }; });
    } else {
        return false;
    }
    return true;
}

}
