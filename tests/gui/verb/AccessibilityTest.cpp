#include "gui/verb/HalcyraComponent.h"
#include "host/bench/window/GuiPump.h"
#include "max/window/OffscreenPeer.h"
#include "support/SpokenTree.h"
#include "support/Stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using spoken::nameOf, spoken::Role, spoken::valueOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/** JUCE speaks only for what stands in a window with a handle: one in memory is given one. */
class HandledWindow : public juce::Component
{
public:
    explicit HandledWindow (juce::Component& content)
    {
        setSize (content.getWidth(), content.getHeight());
        addAndMakeVisible (content);
        addToDesktop (0);
        setVisible (true);
    }
    ~HandledWindow() override { removeFromDesktop(); }

private:
    class Peer : public OffscreenPeer
    {
    public:
        using OffscreenPeer::OffscreenPeer;
        void* getNativeHandle() const override { return const_cast<Peer*> (this); }
    };
    juce::ComponentPeer* createNewPeer (int style, void*) override { return new Peer (*this, style); }
};

class Accessibility : public testing::Test
{
protected:
    Accessibility() : window ((component.setSize (930, 440), component)) { pumpGui(); }

    juce::TabbedComponent& tabs() { return *dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0)); }

    /** "role name: value" of all that is in the tree on a page. */
    std::vector<std::string> onPage (int page)
    {
        tabs().setCurrentTabIndex (page);
        pumpGui();
        std::vector<std::string> found;
        spoken::walk (*component.getAccessibilityHandler(), [&] (juce::AccessibilityHandler& handler) {
            found.push_back (
                (nameOf (handler.getRole()) + (" " + handler.getTitle() + ": ") + valueOf (handler)).toStdString());
        });
        return found;
    }

    juce::AccessibilityHandler* named (const juce::String& name)
    {
        juce::AccessibilityHandler* found = nullptr;
        spoken::walk (*component.getAccessibilityHandler(), [&] (juce::AccessibilityHandler& handler) {
            if (handler.getTitle() == name)
                found = &handler;
        });
        return found;
    }

    HalcyraComponent component{ 2, 2, 8 };
    HandledWindow window;
};

TEST_F (Accessibility, EveryControlHasANameARoleAndAValue)
{
    // The tabs; sliders and the picture, switches, Reset; columns; the objects of the scene.
    constexpr int controlsOfPage[] = { 3 + 19 + 1 + 2 + 1, 3 + 4 * 7, 3 + 2 + 2 + 1 };
    for (int page = 0; page < 3; ++page) {
        (void)onPage (page);
        EXPECT_THAT (spoken::gapsBelow (*component.getAccessibilityHandler()), IsEmpty()) << "page " << page;
        int controls = 0;
        spoken::walk (*component.getAccessibilityHandler(), [&] (const juce::AccessibilityHandler& handler) {
            controls += spoken::isControl (handler.getRole()) ? 1 : 0;
        });
        EXPECT_EQ (controls, controlsOfPage[page]) << "page " << page;
    }
}

TEST_F (Accessibility, SpeaksTheNamesAndUnitsOfPeople)
{
    EXPECT_THAT (onPage (0), testing::IsSupersetOf ({ "slider Early start: 22.22 ms", "slider Decay time: 2.00 s",
                                                      "slider Room size: 2000 m^3", "switch Air absorption: On",
                                                      "slider Impulse response: 400 ms", "tab Time Structure: on",
                                                      "tab filters: off", "group halcyra~.control: " }));
    component.setFilter (1, { 0, 0, -3.5f, 0, 250, 4000 }, true);
    EXPECT_THAT (onPage (1),
                 testing::IsSupersetOf (
                     { "slider Room filter, middle gain: -3.5 dB", "slider Direct filter, high crossover: 4 kHz",
                       "group Cluster filter: ", "button Reset the room filter: ", "tab filters: on" }));
}

TEST_F (Accessibility, HoldsTheShownPageAlone)
{
    EXPECT_THAT (onPage (1), Not (Contains (HasSubstr ("Early start"))));
    const auto scene = onPage (2);
    EXPECT_THAT (scene, Not (Contains (HasSubstr ("slider"))));
    EXPECT_THAT (onPage (0), Not (Contains (HasSubstr ("Source 1"))));
}

TEST_F (Accessibility, TellsWhereObjectsAreAndWhichAreSelected)
{
    auto& plane = *component.getPlane();
    plane.SetSourcePosition (0, { 1, -2, 0.5f }, true);
    plane.SetSourceLabel (1, qel::String ("violin"), true);
    plane.SetSpeakerVisible (1, false, true);
    const auto scene = onPage (2);
    EXPECT_THAT (scene, Contains ("item Source 1: x 1.00 m, y -2.00 m, z 0.50 m"));
    EXPECT_THAT (scene, Contains (HasSubstr ("item Source 2, violin: ")));
    EXPECT_THAT (scene, Contains (HasSubstr ("item Listener: ")));
    EXPECT_THAT (scene, Contains (HasSubstr ("item Speaker 1: ")));
    EXPECT_THAT (scene, Not (Contains (HasSubstr ("Speaker 2"))));

    auto* source = named ("Source 1");
    ASSERT_NE (source, nullptr);
    EXPECT_FALSE (source->getCurrentState().isSelected());
    EXPECT_TRUE (source->getActions().invoke (juce::AccessibilityActionType::press));
    EXPECT_TRUE (source->getCurrentState().isSelected());
    EXPECT_TRUE (plane.IsSourceSelected (0));
    plane.SetSourceEditable (1, false, true);
    ASSERT_NE (named ("Source 2, violin"), nullptr);
    named ("Source 2, violin")->getActions().invoke (juce::AccessibilityActionType::press);
    EXPECT_TRUE (plane.IsSourceSelected (0)) << "the hand takes nothing that it may not edit";
}

TEST_F (Accessibility, FramesTheIconOfAnObjectWhereItStandsNow)
{
    auto& plane = *component.getPlane();
    (void)onPage (2);
    auto* source = named ("Source 2");
    ASSERT_NE (source, nullptr);
    for (const auto& position : { qel::Point3{ 0, 0, 0 }, qel::Point3{ 0.5f, -0.5f, 0 } }) {
        plane.SetSourcePosition (1, position, true);
        (void)source->getCurrentState();
        const auto& drawn = plane.GetScene().sources[1];
        const auto frame = plane.getLocalArea (nullptr, source->getComponent().getScreenBounds()).toFloat();
        EXPECT_LE (frame.getCentre().getDistanceFrom (drawn.screenPosition), 1);
        const auto side = plane.GetSurface().viewTransform.PixelSize (drawn.Proportion());
        EXPECT_NEAR (frame.getWidth(), side, 1);
        EXPECT_NEAR (frame.getHeight(), side, 1);
    }
}

TEST_F (Accessibility, MakesNothingForObjectsUntilAScreenReaderAsksAndFollowsTheSelectionThen)
{
    auto& plane = *component.getPlane();
    tabs().setCurrentTabIndex (2);
    pumpGui();
    plane.grabKeyboardFocus();
    const juce::KeyPress next (juce::KeyPress::tabKey);
    plane.keyPressed (next);
    plane.SetSourcePosition (0, { 1, 1, 0 }, true);
    EXPECT_EQ (plane.getNumChildComponents(), 0);

    ASSERT_NE (named ("Source 2"), nullptr);
    EXPECT_EQ (plane.getNumChildComponents(), 2 + 2 + 1);
    EXPECT_FALSE (named ("Source 2")->hasFocus (false));
    plane.keyPressed (next);
    EXPECT_TRUE (named ("Source 2")->hasFocus (false));
    plane.SetNumSources (3, true);
    EXPECT_NE (named ("Source 3"), nullptr);
}

TEST_F (Accessibility, EditsAsTheHandDoesOneStepAtATime)
{
    (void)onPage (0);
    ASSERT_NE (named ("Early start"), nullptr);
    auto* value = named ("Early start")->getValueInterface();
    value->setValue (10);
    value->setValueAsString ("12.5 ms");
    EXPECT_FLOAT_EQ (component.getEarlyStart(), 12.5f);
    component.undo();
    EXPECT_FLOAT_EQ (component.getEarlyStart(), 10);
    component.setTrh (5); // past the end of its slider
    EXPECT_EQ (valueOf (*named ("Decay time ratio, high")), juce::String (component.getTrh(), 2));

    (void)onPage (1);
    named ("Direct filter, low crossover")->getValueInterface()->setValueAsString ("2 kHz");
    EXPECT_FLOAT_EQ (component.getDirectFilter().fl, 2000);
}

// ---- By keyboard

class Keyboard : public testing::Test
{
protected:
    static juce::String focused()
    {
        const auto* control = juce::Component::getCurrentlyFocusedComponent();
        if (control == nullptr)
            return "nothing";
        return control->getTitle().isNotEmpty() ? control->getTitle() : control->getName();
    }

    juce::TabbedComponent& tabs() { return *dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0)); }

    /** Presses tab until a control has the keyboard. */
    void tabTo (const juce::String& control)
    {
        for (int i = 0; i < 40 && focused() != control; ++i)
            stage.key (focused() == "Scene" ? "ctrl + tab" : "tab");
        ASSERT_EQ (focused(), control);
    }

    HalcyraComponent component{ 2, 2, 8 };
    Stage stage{ component };
};

/** Everything that the tab key reaches, twice round, and back again. */
TEST_F (Keyboard, ReachesEveryControlOfEveryPageInTheOrderOfItsRows)
{
    const char* const tabNames[] = { "Time Structure", "filters", "Ambrel" };
    const juce::StringArray expected[] = {
        { "Impulse response",
          "Room size",
          "Decay time",
          "Decay time ratio, low",
          "Decay time ratio, middle",
          "Decay time ratio, high",
          "Decay crossover, low",
          "Decay crossover, high",
          "Early start",
          "Early end",
          "Early distribution",
          "Early shape",
          "Early width",
          "Cluster start",
          "Cluster end",
          "Cluster distribution",
          "Reverb start",
          "Modal density",
          "Reverb gain",
          "Air absorption",
          "Air absorption frequency",
          "Infinite reverb",
          "Reset the time structure" },
        {},
        { "Scene" },
    };
    for (int page = 0; page < 3; ++page) {
        tabs().setCurrentTabIndex (page);
        auto stops = expected[page];
        if (page == 1)
            for (const auto* filter : { "Direct", "Room", "Early", "Cluster" }) {
                for (const auto& row : halcyra::shelfTable)
                    stops.add (juce::String (filter) + " filter, " + row.spoken);
                stops.add ("Reset the " + juce::String (filter).toLowerCase() + " filter");
            }
        for (const auto* name : tabNames)
            stops.add (name);
        tabTo (stops[stops.size() - 1]);
        for (int round = 0; round < 2; ++round)
            for (const auto& stop : stops) {
                stage.key (focused() == "Scene" ? "ctrl + tab" : "tab");
                ASSERT_EQ (focused(), stop) << "page " << page;
            }
        for (int i = stops.size() - 2; i >= 0; --i) {
            stage.key ("shift + tab");
            ASSERT_EQ (focused(), stops[i]) << "backwards on page " << page;
        }
    }
}

TEST_F (Keyboard, ChangesANumberByOneStepOrTenAndEachPressIsUndone)
{
    tabTo ("Early width");
    stage.key ("cursor right");
    EXPECT_FLOAT_EQ (component.getEarlyWidth(), 30.1f);
    stage.key ("shift + cursor up");
    EXPECT_FLOAT_EQ (component.getEarlyWidth(), 31.1f);
    stage.key ("cursor down");
    EXPECT_FLOAT_EQ (component.getEarlyWidth(), 31);
    stage.key ("shift + cursor left");
    for (const float expected : { 31.0f, 31.1f, 30.1f, 30.0f }) {
        stage.key ("ctrl + z");
        EXPECT_FLOAT_EQ (component.getEarlyWidth(), expected);
    }
    stage.key ("ctrl + y");
    EXPECT_FLOAT_EQ (component.getEarlyWidth(), 30.1f);
}

TEST_F (Keyboard, KeysAndTheWheelOnOneControlAreStepsOfTheirOwn)
{
    tabTo ("Early width");
    const auto spot = stage.at (*juce::Component::getCurrentlyFocusedComponent());
    stage.wheel (spot, 0.2f);
    const float wheeled = component.getEarlyWidth();
    stage.key ("cursor right");
    const float keyed = component.getEarlyWidth();
    stage.wheel (spot, 0.2f);
    ASSERT_NE (component.getEarlyWidth(), keyed);
    component.undo();
    EXPECT_FLOAT_EQ (component.getEarlyWidth(), keyed);
    component.undo();
    EXPECT_FLOAT_EQ (component.getEarlyWidth(), wheeled);
    component.undo();
    EXPECT_FLOAT_EQ (component.getEarlyWidth(), 30);
}

TEST_F (Keyboard, ReturnAndSpacePressWhatTabHasReached)
{
    for (const auto* press : { "return", "spacebar" }) {
        tabTo ("Time Structure");
        stage.key (press);
        EXPECT_EQ (tabs().getCurrentTabIndex(), 0);
        tabTo ("Infinite reverb");
        stage.key (press);
        EXPECT_TRUE (component.getInfinite()) << press;
        stage.key (press);
        EXPECT_FALSE (component.getInfinite()) << press;
        component.undo();
        EXPECT_TRUE (component.getInfinite()) << "each press is a step";
        component.undo();

        tabTo ("filters");
        stage.key (press);
        EXPECT_EQ (tabs().getCurrentTabIndex(), 1) << press;
        tabTo ("Early filter, high gain");
        stage.key ("cursor up");
        EXPECT_FLOAT_EQ (component.getEarlyFilter().Gh, 0.05f);
        stage.key (press);
        EXPECT_FLOAT_EQ (component.getEarlyFilter().Gh, 0.05f) << "a slider has nothing to press";
        tabTo ("Reset the early filter");
        stage.key (press);
        EXPECT_FLOAT_EQ (component.getEarlyFilter().Gh, 0) << press;
    }
}

TEST_F (Keyboard, ReturnAndSpacePressNothingAfterAClickOnAPictureOrASlider)
{
    for (int page = 0; page < 2; ++page) {
        tabs().setCurrentTabIndex (page);
        std::vector<juce::Component*> parts;
        const std::function<void (juce::Component&)> collect = [&] (juce::Component& parent) {
            for (auto* child : parent.getChildren()) {
                if (dynamic_cast<juce::Slider*> (child) != nullptr || dynamic_cast<juce::Label*> (child) != nullptr ||
                    child->getName() == "ImpulseResponseComponent" || child->getName() == "room")
                    parts.push_back (child);
                collect (*child);
            }
        };
        collect (*tabs().getTabContentComponent (page));
        ASSERT_GT (parts.size(), 24u);
        for (auto* part : parts) {
            stage.click (stage.at (*part));
            const auto before = component.getTimeStructure();
            const auto filter = component.getRoomFilter();
            stage.key ("return");
            stage.key ("spacebar");
            for (const auto& row : halcyra::parameterTable)
                EXPECT_EQ (valueOf (component.getTimeStructure(), row), valueOf (before, row)) << part->getTitle();
            EXPECT_EQ (component.getRoomFilter(), filter) << part->getTitle();
            EXPECT_EQ (tabs().getCurrentTabIndex(), page);
        }
    }
}

TEST_F (Keyboard, MovesTheSelectionOfTheScene)
{
    tabs().setCurrentTabIndex (2);
    auto& plane = *component.getPlane();
    plane.SetSourcePosition (0, { 0, 0, 0 }, true);
    plane.SetSpeakerPosition (0, { 1, 1, 0 }, true);
    tabTo ("Scene");
    struct Row
    {
        const char* key;
        qel::Point3 top, front;
    };
    const Row rows[] = {
        { "alt + cursor right", { 0.1f, 0, 0 }, { 0.1f, 0, 0 } },
        { "alt + cursor left", { -0.1f, 0, 0 }, { -0.1f, 0, 0 } },
        { "alt + cursor up", { 0, 0.1f, 0 }, { 0, 0, 0.1f } },
        { "alt + cursor down", { 0, -0.1f, 0 }, { 0, 0, -0.1f } },
        { "alt + page up", { 0, 0, 0.1f }, { 0, 0.1f, 0 } },
        { "shift + alt + page down", { 0, 0, -1 }, { 0, -1, 0 } },
        { "shift + alt + cursor up", { 0, 1, 0 }, { 0, 0, 1 } },
        { "shift + alt + cursor left", { -1, 0, 0 }, { -1, 0, 0 } },
    };
    stage.key ("tab"); // the first source
    for (const bool topView : { true, false }) {
        plane.SetTopView (topView);
        for (const auto& row : rows) {
            stage.key (row.key);
            const auto expected = topView ? row.top : row.front;
            EXPECT_FLOAT_EQ (plane.GetSourcePosition (0).x, expected.x) << row.key;
            EXPECT_FLOAT_EQ (plane.GetSourcePosition (0).y, expected.y) << row.key;
            EXPECT_FLOAT_EQ (plane.GetSourcePosition (0).z, expected.z) << row.key;
            stage.key ("ctrl + z");
            EXPECT_FLOAT_EQ (plane.GetSourcePosition (0).x, 0) << "undone: " << row.key;
            EXPECT_FLOAT_EQ (plane.GetSourcePosition (0).z, 0) << "undone: " << row.key;
        }
    }
    plane.SetSpeakersEditable (true, true);
    stage.key ("alt + home");
    EXPECT_EQ (plane.GetSelectedSpeaker(), 0);
    stage.key ("alt + cursor right");
    EXPECT_FLOAT_EQ (plane.GetSpeakerPosition (0).x, 1.1f);
    plane.SetListenerEditable (true);
    stage.key ("alt + end");
    stage.key ("alt + cursor right");
    EXPECT_FLOAT_EQ (plane.GetListenerPosition().x, 0.1f);
    EXPECT_FLOAT_EQ (plane.GetSpeakerPosition (0).x, 1.1f);
    EXPECT_FLOAT_EQ (plane.GetSourcePosition (0).x, 0);

    plane.SetTopView (true);
    plane.SetSourcePosition (0, { 2, 0, 0 }, true);
    plane.SetCircularConstraint (true);
    stage.key ("tab");
    stage.key ("alt + cursor up");
    const auto& turned = plane.GetSourcePosition (0);
    EXPECT_GT (turned.y, 0.05f);
    EXPECT_NEAR (std::hypot (turned.x, turned.y), 2, 1e-5) << "the circle is kept";
}

TEST_F (Keyboard, ShowsWhereItIsOnlyWhenItIsInUse)
{
    const auto untouched = stage.picture().createCopy();
    const auto differ = [&] (juce::Rectangle<int> area) {
        const auto now = stage.picture();
        for (int y = area.getY(); y < area.getBottom(); ++y)
            for (int x = area.getX(); x < area.getRight(); ++x)
                if (now.getPixelAt (x, y) != untouched.getPixelAt (x, y))
                    return true;
        return false;
    };
    tabTo ("Early width");
    const auto& slider = *juce::Component::getCurrentlyFocusedComponent();
    const auto around = component.getLocalArea (&slider, slider.getLocalBounds()).expanded (3);
    EXPECT_TRUE (differ (around));
    stage.click ({ 300, 100 }); // the picture
    EXPECT_FALSE (differ (component.getLocalBounds().withTrimmedTop (200)));
}

}
