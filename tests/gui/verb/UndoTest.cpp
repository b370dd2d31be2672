#include "gui/verb/HLShelfFrequencyResponseComponent.h"
#include "gui/verb/HalcyraComponent.h"
#include "support/Stage.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace
{

namespace cell = halcyra::cell;

/** Everything that a step may contain. */
std::vector<float> stateOf (const HalcyraComponent& component)
{
    std::vector<float> state;
    lumo::poses::read (*component.getPlane(), state);
    for (int i = 0; i < cell::count; ++i)
        state.push_back (component.getModel().value (i));
    return state;
}

class Undo : public testing::Test
{
protected:
    Undo()
    {
        auto& plane = *component.getPlane();
        plane.SetSpeakersEditable (true, true);
        plane.SetListenerEditable (true);
        plane.SetApertureVisible (true);
    }

    /** Any user action on a control, a handle or an object of the scene. */
    void gesture()
    {
        const int page = static_cast<int> (random() % 3);
        turnTo (page);
        const auto spot = page == 2 ? objectOfScene() : control (page);
        const auto elsewhere = spot + juce::Point<int> (jitter (60), jitter (60));
        using Keys = juce::ModifierKeys;
        const Keys keys[] = {
            {}, {}, {}, Keys (Keys::ctrlModifier), Keys (Keys::altModifier), Keys (Keys::shiftModifier)
        };
        const auto held = keys[random() % std::size (keys)];
        switch (random() % 4) {
        case 0:
            return stage.wheel (spot, 0.2f * static_cast<float> (jitter (5)), held);
        case 1:
            return stage.doubleClick (spot, held);
        default:
            return stage.dragFromTo (spot, elsewhere, held);
        }
    }

    int jitter (int most) { return static_cast<int> (random() % static_cast<unsigned> (2 * most + 1)) - most; }

    /** What a page shows of sliders, buttons and curves. */
    std::vector<const juce::Component*> controlsOn (int page)
    {
        std::vector<const juce::Component*> controls;
        const std::function<void (const juce::Component&)> collect = [&] (const juce::Component& parent) {
            for (const auto* child : parent.getChildren()) {
                if (child->isShowing() &&
                    (dynamic_cast<const juce::Slider*> (child) != nullptr ||
                     dynamic_cast<const juce::Button*> (child) != nullptr ||
                     dynamic_cast<const lumo::HLShelfFrequencyResponseComponent*> (child) != nullptr))
                    controls.push_back (child);
                collect (*child);
            }
        };
        collect (*tabs().getTabContentComponent (page));
        return controls;
    }

    std::vector<const juce::Component*> slidersOn (int page)
    {
        auto sliders = controlsOn (page);
        sliders.erase (std::remove_if (sliders.begin(), sliders.end(),
                                       [] (const juce::Component* control) {
                                           return dynamic_cast<const juce::Slider*> (control) == nullptr;
                                       }),
                       sliders.end());
        return sliders;
    }

    juce::Point<int> control (int page)
    {
        const auto controls = controlsOn (page);
        const auto& chosen = *controls[random() % controls.size()];
        return stage.at (chosen) + juce::Point<int> (jitter (chosen.getWidth() / 2), jitter (chosen.getHeight() / 3));
    }

    juce::Point<int> objectOfScene()
    {
        const auto& plane = *component.getPlane();
        std::vector<juce::Point<float>> places{ plane.GetListener().screenPosition };
        for (const auto& source : plane.GetScene().sources)
            places.push_back (source.screenPosition);
        for (const auto& speaker : plane.GetScene().speakers)
            places.push_back (speaker.screenPosition);
        return stage.at (plane, places[random() % places.size()].toInt()) + juce::Point<int> (jitter (6), jitter (6));
    }

    juce::TabbedComponent& tabs() { return *dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0)); }
    void turnTo (int page) { tabs().setCurrentTabIndex (page); }

    HalcyraComponent component{ 3, 2, 8 };
    Stage stage{ component };
    std::mt19937 random{ 4 };
};

TEST_F (Undo, GoesDownToTheBottomAndUpToTheTopThroughTheSameStates)
{
    for (int round = 0; round < 12; ++round) {
        if (round % 3 == 1)
            component.getPlane()->SetRadiusConstraint (round % 2 == 0);
        std::vector<std::vector<float>> states{ stateOf (component) };
        for (int i = 0; i < 90; ++i) {
            gesture();
            if (auto now = stateOf (component); now != states.back())
                states.push_back (std::move (now));
        }
        ASSERT_GT (states.size(), 20u) << "the gestures hit something";
        // A series of wheel events is one step for several states, so each state that undo gives must be the next one
        // down.
        const auto walk = [&] (const char* key, auto first, auto last) {
            for (auto state = first; state != last;) {
                stage.key (key);
                const auto next = std::find (state + 1, last, stateOf (component));
                if (next == last) {
                    ASSERT_EQ (stateOf (component), *state) << "a state that never was, by " << key;
                    ASSERT_EQ (state + 1, last) << "the walk ended early, by " << key;
                    return;
                }
                state = next;
            }
        };
        walk ("ctrl + z", states.rbegin(), states.rend());
        EXPECT_EQ (stateOf (component), states.front());
        walk (round % 2 == 0 ? "ctrl + y" : "ctrl + shift + z", states.begin(), states.end());
        EXPECT_EQ (stateOf (component), states.back());
        for (int i = 0; i < 110; ++i)
            stage.key ("ctrl + z");
    }
}

TEST_F (Undo, ADoubleClickIsOneStepAndARunOfTheWheelToo)
{
    const juce::Point<int> decay (138, 241), gain (760, 240);
    const auto start = stateOf (component);
    stage.click ({ 180, 241 });
    const auto clicked = stateOf (component);
    stage.doubleClick (decay);
    ASSERT_NE (stateOf (component), clicked);
    component.undo();
    EXPECT_EQ (stateOf (component), clicked) << "not the place of the first click";
    for (int i = 0; i < 4; ++i)
        stage.wheel (gain, 0.1f);
    component.undo();
    EXPECT_EQ (stateOf (component), clicked);
    component.undo();
    EXPECT_EQ (stateOf (component), start);
}

TEST_F (Undo, ARunOfTheWheelIsNoPartOfADoubleClickAfterIt)
{
    int doubleClicks = 0;
    for (int page = 0; page < 2; ++page) {
        turnTo (page);
        const auto sliders = slidersOn (page);
        for (const auto* slider : sliders) {
            const auto& wheeled = *(slider == sliders[0] ? sliders[1] : sliders[0]);
            const auto spot = stage.at (*slider, slider->getLocalBounds().getRelativePoint (0.3f, 0.3f));
            stage.click (spot); // so that the first click of the two changes nothing
            stage.wheel (stage.at (wheeled), ++doubleClicks % 2 == 0 ? 0.1f : -0.1f);
            const auto turned = stateOf (component);
            stage.doubleClick (spot);
            ASSERT_NE (stateOf (component), turned) << slider->getTitle();
            component.undo();
            EXPECT_EQ (stateOf (component), turned) << slider->getTitle();
        }
    }
    EXPECT_EQ (doubleClicks, 19 + 4 * 6);
}

TEST_F (Undo, TwoClicksOnNeighboursAreTwoStepsHoweverQuick)
{
    int neighbours = 0;
    for (int page = 0; page < 2; ++page) {
        turnTo (page);
        for (const auto* first : slidersOn (page))
            for (const auto* second : slidersOn (page)) {
                const auto pixelsOf = [&] (const juce::Component* slider) {
                    return component.getLocalArea (slider, slider->getLocalBounds())
                        .withTrimmedRight (1)
                        .withTrimmedBottom (1);
                };
                const auto box = pixelsOf (first), other = pixelsOf (second);
                const auto from = box.getConstrainedPoint (other.getCentre());
                const auto to = other.getConstrainedPoint (from);
                if (first == second || from.getDistanceFrom (to) > 7)
                    continue;
                stage.click (other.getCentre());
                stage.click (from);
                const auto clicked = stateOf (component);
                stage.clickAgain (to);
                if (stateOf (component) == clicked)
                    continue;
                ++neighbours;
                component.undo();
                EXPECT_EQ (stateOf (component), clicked) << first->getTitle() << ", " << second->getTitle();
            }
    }
    EXPECT_GT (neighbours, 20);
}

TEST_F (Undo, AClickAfterAnUndoJoinsNoOlderStep)
{
    const juce::Point<int> spot (180, 241);
    stage.click (spot.translated (-40, 0));
    const auto older = stateOf (component);
    stage.click (spot);
    stage.key ("ctrl + z");
    EXPECT_EQ (stateOf (component), older);
    stage.clickAgain (spot.translated (3, 0));
    ASSERT_NE (stateOf (component), older);
    stage.key ("ctrl + z");
    EXPECT_EQ (stateOf (component), older);
}

TEST_F (Undo, MessagesAreNoStepsAndBreakNone)
{
    stage.click ({ 180, 241 });
    component.setReverbGain (7);
    component.setRoomSize (3000, 1);
    const float moved = component.getTr0();
    component.undo();
    EXPECT_EQ (component.getTr0(), 2);
    EXPECT_EQ (component.getReverbGain(), 7);
    component.setDirectFilter ({ 1, 2, 3, 4, 500, 600 }, true);
    component.redo();
    EXPECT_EQ (component.getTr0(), moved);
    EXPECT_EQ (component.getDirectFilter().Gl, 2);
}

TEST_F (Undo, WaitsForTheMouseAndItsKeysAreTakenAlways)
{
    stage.click ({ 180, 241 });
    const float moved = component.getTr0();
    stage.press ({ 100, 265 });
    component.undo();
    component.redo();
    EXPECT_EQ (component.getTr0(), moved);
    stage.release ({ 100, 265 });
    for (const auto* key : { "ctrl + z", "ctrl + shift + z", "ctrl + y" })
        for (int i = 0; i < 3; ++i)
            EXPECT_TRUE (component.keyPressed (juce::KeyPress::createFromDescription (key))) << key;
    EXPECT_FALSE (component.keyPressed (juce::KeyPress::createFromDescription ("z")));
}

}
