#include "gui/verb/HalcyraComponent.h"

#include "gui/verb/FocusRing.h"
#include "gui/verb/HalcyraAmbrelTabComponent.h"
#include "gui/verb/HalcyraFiltersTabComponent.h"
#include "gui/verb/HalcyraTimeStructureTabComponent.h"
#include "gui/verb/PageTabs.h"
#include "gui/verb/TooltipWindow.h"

#include <algorithm>
#include <array>

namespace
{

using halcyra::Edit;
using Step = halcyra::EditHistory::Step;
using Value = halcyra::EditHistory::Value;
using Poses = lumo::poses::Poses;
namespace cell = halcyra::cell;

const juce::Colour frameColour{ 0xFFA4A4A4 };
const juce::Colour tabColour{ 0xFFD3D3D3 };

const juce::KeyPress closeKey{ 'w', juce::ModifierKeys::ctrlModifier, 0 };

/** The undo and redo keys. Consumed even with nothing to undo, so that they never reach the host. */
struct HistoryKey
{
    juce::KeyPress key;
    void (HalcyraComponent::*act)();
};

const std::array<HistoryKey, 3> historyKeys{ {
    { { 'z', juce::ModifierKeys::ctrlModifier, 0 }, &HalcyraComponent::undo },
    { { 'z', juce::ModifierKeys::ctrlModifier | juce::ModifierKeys::shiftModifier, 0 }, &HalcyraComponent::redo },
    { { 'y', juce::ModifierKeys::ctrlModifier, 0 }, &HalcyraComponent::redo },
} };

bool isMousePressed() { return juce::Desktop::getInstance().getNumDraggingMouseSources() > 0; }

/** The gesture that an edit made now belongs to. */
halcyra::EditHistory::Gesture presentGesture()
{
    return { juce::Desktop::getInstance().getMainMouseSource().getComponentUnderMouse(), isMousePressed() };
}

}

/** Created only for a window. */
struct HalcyraComponent::Pages
{
    Pages (HalcyraComponent& owner, std::unique_ptr<halcyra::UndoablePlane> plane)
    {
        tabs.setTabBarDepth (30);
        tabs.addPage ("Time Structure", tabColour,
                      std::make_unique<HalcyraTimeStructureTabComponent> ("HalcyraTimeStructure", owner.model));
        tabs.addPage ("filters", tabColour,
                      std::make_unique<HalcyraFiltersTabComponent> ("HalcyraFilters", owner.model));
        tabs.addPage ("Ambrel", tabColour, std::make_unique<HalcyraAmbrelTabComponent> (std::move (plane)));
    }

    juce::SharedResourcePointer<widgets::TooltipWindow> tooltipWindow;
    halcyra::PageTabs tabs;
    halcyra::FocusRing focusRing;
};

HalcyraComponent::HalcyraComponent (std::uint32_t sources, std::uint32_t speakers, std::uint32_t internals)
    : numsources (sources),
      numspeakers (speakers),
      numinternals (internals),
      model (static_cast<int> (internals)),
      planeWithoutPage (std::make_unique<halcyra::UndoablePlane> (
          sources, speakers, 400, [this] (const Poses& before, const Poses& after) { sceneMoved (before, after); },
          [this] { history.closeRun(); })),
      plane (planeWithoutPage.get())
{
    using Page = HalcyraAmbrelTabComponent;
    plane->setBounds (Page::planeX, Page::planeY, Page::planeSize, Page::planeSize);
    plane->SetRepaintMode (0);
    plane->AddListener (this);
    model.addListener (this);
    setOpaque (true);
    setTitle ("halcyra~.control");
    setFocusContainerType (FocusContainerType::focusContainer);
    setSize (930, 440);
    setWantsKeyboardFocus (true);
}

HalcyraComponent::~HalcyraComponent()
{
    plane->RemoveListener (this);
    model.removeListener (this);
}

void HalcyraComponent::makePages()
{
    if (pages != nullptr)
        return;
    pages = std::make_unique<Pages> (*this, std::move (planeWithoutPage));
    pages->tabs.setBounds (5, 6, 920, 430);
    addAndMakeVisible (pages->tabs);
    addChildComponent (pages->focusRing);
    sendLookAndFeelChange();       // the children were laid out with another look
    addMouseListener (this, true); // the end of every press ends a gesture
    addMouseListener (pages->tooltipWindow, true);
}

void HalcyraComponent::parentHierarchyChanged()
{
    lumo::Component::parentHierarchyChanged();
    if (getParentComponent() != nullptr || isOnDesktop())
        makePages();
}

void HalcyraComponent::addListener (Listener* listener) { listeners.add (listener); }
void HalcyraComponent::removeListener (Listener* listener) { listeners.remove (listener); }

void HalcyraComponent::sendAllParameters()
{
    for (std::uint32_t source = 0; source < numsources; ++source)
        listeners.call ([&] (Listener& l) { l.HalcyraSourceChanged (static_cast<int> (source)); });
    for (std::size_t filter = 0; filter < halcyra::filterNames.size(); ++filter)
        listeners.call ([&] (Listener& l) { l.HalcyraFilterChanged (static_cast<HalcyraFilter> (filter)); });
    model.forgetWaiting();
    for (const auto& row : halcyra::parameterTable)
        listeners.call ([&] (Listener& l) { l.HalcyraReverbChanged (row.number); });
    listeners.call ([] (Listener& l) { l.HalcyraSpeakersChanged(); });
    listeners.call ([] (Listener& l) { l.HalcyraViewerOptionsChanged(); });
}

void HalcyraComponent::resetAll() { model.reset (Edit::message); }

// ---- Settings from the host

float HalcyraComponent::reverbParameter (HalcyraReverbParameter number) const noexcept
{
    return halcyra::parameterRow (number) == nullptr ? 0.0f : model.value (number);
}

void HalcyraComponent::setReverbParameter (HalcyraReverbParameter number, float value)
{
    model.setParameter (number, value, Edit::message);
}

void HalcyraComponent::setRoomSize (float value, int notification)
{
    model.setRoomSize (value, notification == 1 ? Edit::message : Edit::quiet);
}

void HalcyraComponent::setFilter (HalcyraFilter filter, const HLShelfParameters& wish, bool notify)
{
    model.setFilter (filter, wish, notify ? Edit::message : Edit::quiet);
}

qel::Point3 HalcyraComponent::getSourcePosition (int index) const
{
    return plane->GetSourcePosition (static_cast<std::size_t> (index));
}

void HalcyraComponent::getSpeakerPositions (qel::Point3Array& out) const
{
    out.resize (numspeakers);
    for (std::size_t i = 0; i < out.size(); ++i)
        out[i] = plane->GetSpeakerPosition (i);
}

// ---- Notifications

void HalcyraComponent::parameterTold (HalcyraReverbParameter number)
{
    listeners.call ([&] (Listener& l) { l.HalcyraReverbChanged (number); });
}

void HalcyraComponent::filterTold (HalcyraFilter number)
{
    listeners.call ([&] (Listener& l) { l.HalcyraFilterChanged (number); });
}

void HalcyraComponent::SourcePositionChanged (std::size_t index, const qel::Point3&)
{
    listeners.call ([&] (Listener& l) { l.HalcyraSourceChanged (static_cast<int> (index)); });
}

void HalcyraComponent::SpeakersPositionsChanged (const qel::Point3Array&)
{
    listeners.call ([] (Listener& l) { l.HalcyraSpeakersChanged(); });
}

void HalcyraComponent::OptionsChanged (lumo::PlaneBase&)
{
    listeners.call ([] (Listener& l) { l.HalcyraViewerOptionsChanged(); });
}

// ---- Undo. A model cell is identified by its own number; scene poses follow after those.

void HalcyraComponent::reverbChanged (const halcyra::ReverbModel::Change& change)
{
    if (change.edit == Edit::hand)
        history.record (presentGesture(), change.cell, change.before, change.after);
}

void HalcyraComponent::sceneMoved (const Poses& before, const Poses& after)
{
    const auto gesture = presentGesture();
    for (std::size_t i = 0; i < before.size(); ++i)
        if (before[i] != after[i])
            history.record (gesture, cell::count + static_cast<int> (i), before[i], after[i]);
}

// These arrive after the pressed component's own handlers.
void HalcyraComponent::mouseDown (const juce::MouseEvent&)
{
    history.closeRun();
    pages->focusRing.surround (nullptr);
}

void HalcyraComponent::mouseUp (const juce::MouseEvent& event)
{
    if (event.getNumberOfClicks() < 2 || event.eventComponent != lastPressed)
        stepsOfClicks = 0;
    lastPressed = event.eventComponent;
    endGesture();
}

void HalcyraComponent::mouseDoubleClick (const juce::MouseEvent&) { endGesture(); }

void HalcyraComponent::endGesture()
{
    if (history.close())
        stepsOfClicks = history.joinNewest (stepsOfClicks + 1);
}

void HalcyraComponent::undo()
{
    if (! isMousePressed())
        apply (history.undo(), &Value::before);
}

void HalcyraComponent::redo()
{
    if (! isMousePressed())
        apply (history.redo(), &Value::after);
}

void HalcyraComponent::apply (const Step* step, float Value::*side)
{
    stepsOfClicks = 0; // the next click continues nothing that was undone
    if (step == nullptr)
        return;
    std::vector<halcyra::ReverbModel::Wish> wishes;
    Poses poses;
    lumo::poses::read (*plane, poses);
    for (const auto& value : *step)
        if (value.cell < cell::count)
            wishes.push_back ({ value.cell, value.*side });
        else
            poses[static_cast<std::size_t> (value.cell - cell::count)] = value.*side;
    model.recall (wishes.data(), wishes.size(), Edit::message);
    lumo::poses::restore (*plane, poses);
}

bool HalcyraComponent::keyPressed (const juce::KeyPress& key)
{
    for (const auto& row : historyKeys)
        if (key == row.key) {
            (this->*row.act)();
            return true;
        }
    if (key.isKeyCode (juce::KeyPress::tabKey)) {
        moveFocus (! key.getModifiers().isShiftDown());
        return true;
    }
    if (key == juce::KeyPress::spaceKey) // return already does
        if (auto* button = dynamic_cast<juce::Button*> (getCurrentlyFocusedComponent())) {
            button->triggerClick();
            return true;
        }
    if (key == closeKey)
        listeners.call ([] (Listener& l) { l.HalcyraCloseRequested(); });
    return false; // the parent handles the key
}

// ---- The keyboard

namespace
{

/** The tab key's stops: components that take the focus themselves, not a container's children. */
std::vector<juce::Component*> stopsIn (juce::Component& window)
{
    const auto wanting = juce::KeyboardFocusTraverser().getAllComponents (&window);
    std::vector<juce::Component*> stops;
    std::copy_if (wanting.begin(), wanting.end(), std::back_inserter (stops), [&] (const juce::Component* candidate) {
        return std::none_of (wanting.begin(), wanting.end(),
                             [&] (const juce::Component* other) { return candidate->isParentOf (other); });
    });
    return stops;
}

}

/** Wraps around at both ends; from a page that has the focus itself it enters the page. */
void HalcyraComponent::moveFocus (bool forwards)
{
    const auto stops = stopsIn (*this);
    if (stops.empty())
        return;
    const auto* const focused = getCurrentlyFocusedComponent();
    const auto count = stops.size();
    auto next = static_cast<std::size_t> (std::find_if (stops.begin(), stops.end(),
                                                        [&] (const juce::Component* stop) {
                                                            return stop == focused || focused == nullptr ||
                                                                   focused->isParentOf (stop);
                                                        }) -
                                          stops.begin());
    if (next == count)
        next = 0;
    else if (! forwards)
        next = (next + count - 1) % count;
    else if (stops[next] == focused)
        next = (next + 1) % count;
    stops[next]->grabKeyboardFocus();
    pages->focusRing.surround (getCurrentlyFocusedComponent());
}

std::unique_ptr<juce::AccessibilityHandler> HalcyraComponent::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::group);
}

// ---- Drawing

void HalcyraComponent::resized()
{
    if (pages != nullptr)
        pages->tabs.setBounds (5, 6, 920, 430);
}

void HalcyraComponent::paint (juce::Graphics& g)
{
    makePages(); // for a snapshot of a component that never had a window
    BeginPaintTiming();
    if (isVisible())
        g.fillAll (frameColour);
}

void HalcyraComponent::paintOverChildren (juce::Graphics& g)
{
    EndPaintTiming(); // include the pages in the timing
    lumo::Component::paintOverChildren (g);
}
