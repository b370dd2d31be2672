#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/plane/interaction/HitTest.h"
#include "gui/plane/interaction/PlaneMenu.h"
#include "gui/scene/Positions.h"
#include "gui/scene/Steps.h"

#include <algorithm>
#include <cmath>

namespace lumo
{

using namespace Plane;

namespace
{

constexpr float degreesPerWheel = 20.0f;
constexpr float octavesPerWheel = 0.15f;

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
    pointer.last = surface.viewTransform.ToWorld ({ event.position.x, event.position.y });
    Notify ([] (PlaneListener& l) { l.PointerButtonChanged (true); });
    Notify ([this] (PlaneListener& l) { l.PointerMoved (pointer.last); });

    const int speakerBefore = scene.selectedSpeaker;
    selection.Press (HitUnder (event.position), event.mods.isShiftDown());
    FinishSpeakerSelection (speakerBefore);
    BeginLassoOrDrag();
    NotifySelectionChanged();
    repaint();
}

// ---- Selection

Selection::Hit PlaneComponent::HitUnder (juce::Point<float> pixels) const
{
    return { SourceUnder (pixels, surface, scene), IsListenerUnder (pixels, surface),
             SpeakerUnder (pixels, surface, scene) };
}

void PlaneComponent::FinishSpeakerSelection (int before)
{
    const int now = scene.selectedSpeaker;
    if (now == before)
        return;
    MarkStaticLayerDirty();
    const auto tell = [this] (int index, bool selected) {
        if (index != Scene::none)
            Notify ([&] (PlaneListener& l) {
                l.SpeakerSelectionChanged (static_cast<std::size_t> (index), selected, *this);
            });
    };
    tell (now, true);
    tell (before, false);
}

template <typename Change>
void PlaneComponent::ChangeSelection (Change&& change)
{
    const int speakerBefore = scene.selectedSpeaker;
    if (! change())
        return;
    FinishSpeakerSelection (speakerBefore);
    NotifySelectionChanged();
    repaint();
}

void PlaneComponent::SelectAllSources()
{
    ChangeSelection ([this] { return selection.TakeAllSources(); });
}

void PlaneComponent::SelectNextSource()
{
    ChangeSelection ([this] {
        if (! selection.TakeNextSource())
            return false;
        surface.lasso = {};
        return true;
    });
}

template <typename Take>
void PlaneComponent::SelectAlone (Take&& take)
{
    ChangeSelection ([&] {
        take();
        surface.lasso = {};
        return true;
    });
}

void PlaneComponent::SelectSourceAlone (std::size_t index)
{
    if (const auto* source = SourceAt (index); source != nullptr && IsClickable (*source))
        SelectAlone ([&] { selection.TakeSource (index); });
}

void PlaneComponent::SelectSpeakerAlone (std::size_t index)
{
    if (const auto* speaker = SpeakerAt (index); speaker != nullptr && IsClickable (*speaker, surface))
        SelectAlone ([&] { selection.TakeSpeaker (index); });
}

void PlaneComponent::SelectListenerAlone()
{
    if (surface.listener.editable && surface.listener.visible)
        SelectAlone ([this] { selection.TakeListener(); });
}

void PlaneComponent::SelectNextSpeaker()
{
    const auto first = scene.speakers.begin() + (scene.selectedSpeaker + 1);
    const auto next = std::find_if (first, scene.speakers.end(),
                                    [this] (const Speaker& speaker) { return IsClickable (speaker, surface); });
    if (next != scene.speakers.end())
        SelectSpeakerAlone (static_cast<std::size_t> (next - scene.speakers.begin()));
    else if (scene.selectedSpeaker != Scene::none)
        SelectAlone ([this] { selection.Clear(); });
}

// ---- Lasso and drag

void PlaneComponent::BeginLassoOrDrag()
{
    const bool anySelected = selection.Any();
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
        const auto point = surface.viewTransform.ToWorld ({ event.position.x, event.position.y });
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
    const float angle = TurnInView (from, to, topView);
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
