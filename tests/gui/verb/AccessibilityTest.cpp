#include "gui/verb/HalcyraComponent.h"
#include "host/bench/window/GuiPump.h"
#include "host/desktop/OffscreenPeer.h"
#include "support/SpokenTree.h"
#include "support/Stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace
{

using spoken::nameOf, spoken::Role, spoken::valueOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/** JUCE exposes only components in a window with a handle, so this gives one to a window in memory. */
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
    class Peer : public desktop::OffscreenPeer
    {
    public:
        using desktop::OffscreenPeer::OffscreenPeer;
        void* getNativeHandle() const override { return const_cast<Peer*> (this); }
    };
    juce::ComponentPeer* createNewPeer (int style, void*) override { return new Peer (*this, style); }
};

class Accessibility : public testing::Test
{
protected:
    Accessibility() : window ((component.setSize (930, 440), component)) { bench::pumpGui(); }

    juce::TabbedComponent& tabs() { return *dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0)); }

    /** "role name: value" of everything in the tree of a page. */
    std::vector<std::string> onPage (int page)
    {
        tabs().setCurrentTabIndex (page);
        bench::pumpGui();
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
    // The tabs; the parameters, the room size, the picture, Reset; columns; the objects of the scene.
    constexpr int controlsOfPage[] = { 3 + halcyra::parameter::count + 3, 3 + 4 * 7, 3 + 2 + 2 + 1 };
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
    const auto scene = onPage (2);
    EXPECT_THAT (scene, Contains ("item Source 1: x 1.00 m, y -2.00 m, z 0.50 m"));
    EXPECT_THAT (scene, Contains (HasSubstr ("item Source 2, violin: ")));

    plane.SetSpeakersEditable (true, true);
    plane.SetListenerEditable (true);
    const auto selected = [this] {
        std::vector<std::string> names;
        spoken::walk (*component.getAccessibilityHandler(), [&] (const juce::AccessibilityHandler& handler) {
            if (handler.getCurrentState().isSelected())
                names.push_back (handler.getTitle().toStdString());
        });
        return names;
    };
    const struct
    {
        const char* name;
        void (*hide) (lumo::PlaneComponent&);
        void (*lock) (lumo::PlaneComponent&);
    } objects[] = {
        { "Source 1", [] (auto& p) { p.SetSourceVisible (0, false, true); },
          [] (auto& p) { p.SetSourceEditable (0, false, true); } },
        { "Source 2, violin", [] (auto& p) { p.SetSourceVisible (1, false, true); },
          [] (auto& p) { p.SetSourceEditable (1, false, true); } },
        { "Speaker 1", [] (auto& p) { p.SetSpeakerVisible (0, false, true); },
          [] (auto& p) { p.SetSpeakerEditable (0, false, true); } },
        { "Speaker 2", [] (auto& p) { p.SetSpeakersVisible (false); },
          [] (auto& p) { p.SetSpeakersEditable (false, true); } },
        { "Listener", [] (auto& p) { p.SetListenerVisible (false); }, [] (auto& p) { p.SetListenerEditable (false); } },
    };
    for (const auto& object : objects) {
        ASSERT_NE (named (object.name), nullptr) << object.name;
        EXPECT_TRUE (named (object.name)->getActions().invoke (juce::AccessibilityActionType::press));
        EXPECT_THAT (selected(), testing::ElementsAre (object.name));
    }
    plane.SelectSourceAlone (0);
    for (const auto& object : objects) {
        if (&object == objects)
            continue;
        object.lock (plane);
        named (object.name)->getActions().invoke (juce::AccessibilityActionType::press);
        EXPECT_THAT (selected(), testing::ElementsAre ("Source 1")) << "the hand may not take " << object.name;
    }
    for (const auto& object : objects) {
        object.hide (plane);
        EXPECT_EQ (named (object.name), nullptr) << object.name << " is hidden";
    }
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
    bench::pumpGui();
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

TEST_F (Accessibility, AKeyMovesASliderByTheStepThatIsSpoken)
{
    int sliders = 0;
    std::set<juce::String> messages;
    for (int page = 0; page < 2; ++page) {
        (void)onPage (page);
        spoken::walk (*component.getAccessibilityHandler(), [&] (juce::AccessibilityHandler& handler) {
            auto* const slider = dynamic_cast<juce::Slider*> (&handler.getComponent());
            if (slider == nullptr)
                return;
            ++sliders;
            messages.insert (handler.getHelp());
            auto& value = *handler.getValueInterface();
            const auto range = value.getRange();
            value.setValue (range.getMinimumValue());
            const double lowest = value.getCurrentValue(); // a neighbour may stop it
            slider->keyPressed (juce::KeyPress (juce::KeyPress::rightKey));
            EXPECT_NEAR (value.getCurrentValue() - lowest, range.getInterval(), 1e-4) << handler.getTitle();
            for (const int others : { juce::ModifierKeys::ctrlModifier, juce::ModifierKeys::altModifier })
                EXPECT_FALSE (slider->keyPressed (juce::KeyPress (juce::KeyPress::rightKey, others, 0)));
            EXPECT_NEAR (value.getCurrentValue() - lowest, range.getInterval(), 1e-4) << handler.getTitle();
        });
    }
    EXPECT_EQ (sliders, 19 + 4 * 6);
    EXPECT_EQ (messages.size(), 19u + 4 * 6) << "each tells its own";
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
    component.setTrh (5); // beyond the end of its slider
    EXPECT_EQ (valueOf (*named ("Decay time ratio, high")), juce::String (component.getTrh(), 2));

    (void)onPage (1);
    named ("Direct filter, low crossover")->getValueInterface()->setValueAsString ("2 kHz");
    EXPECT_FLOAT_EQ (component.getDirectFilter().fl, 2000);
}

// ---- By keyboard; tests/transcripts/keyboard-walk.bench walks through everything

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

    /** Presses tab until a control has the focus. */
    void tabTo (const juce::String& control)
    {
        for (int i = 0; i < 40 && focused() != control; ++i)
            stage.key (focused() == "Scene" ? "ctrl + tab" : "tab");
        ASSERT_EQ (focused(), control);
    }

    HalcyraComponent component{ 2, 2, 8 };
    Stage stage{ component };
};

TEST_F (Keyboard, KeysAndTheWheelOnOneControlAreStepsOfTheirOwn)
{
    const struct
    {
        int page;
        const char *control, *key;
        std::function<float()> value;
        juce::ModifierKeys modifiers{};
    } rows[] = {
        { 0, "Early width", "cursor right", [this] { return component.getEarlyWidth(); } },
        { 1, "Room filter, middle gain", "cursor up", [this] { return component.getRoomFilter().Gm; } },
        { 2, "Scene", "alt + page up", [this] { return component.getSourcePosition (0).z; },
          juce::ModifierKeys (juce::ModifierKeys::shiftModifier) },
    };
    component.getPlane()->SelectSourceAlone (0);
    for (const auto& row : rows) {
        tabs().setCurrentTabIndex (row.page);
        tabTo (row.control);
        const auto spot = stage.at (*juce::Component::getCurrentlyFocusedComponent());
        std::vector<float> values{ row.value() };
        for (const bool isKey : { false, true, false, true, true }) {
            if (isKey)
                stage.key (row.key);
            else
                stage.wheel (spot, 0.2f, row.modifiers);
            ASSERT_NE (row.value(), values.back()) << row.control;
            values.push_back (row.value());
        }
        while (values.pop_back(), ! values.empty()) {
            component.undo();
            EXPECT_FLOAT_EQ (row.value(), values.back()) << row.control;
        }
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
    auto around = component.getLocalArea (&slider, slider.getLocalBounds()).expanded (3);
    EXPECT_TRUE (differ (around));
    component.grabKeyboardFocus(); // neither by the mouse nor by tab
    bench::pumpGui();
    EXPECT_FALSE (differ (around));
    tabTo ("Early width");
    EXPECT_TRUE (differ (around));
    stage.click ({ 300, 100 }); // the picture
    EXPECT_FALSE (differ (component.getLocalBounds().withTrimmedTop (200)));
    tabTo ("Early width");
    stage.click (stage.at (slider));
    EXPECT_FALSE (differ (around.removeFromTop (2))) << "a press on the control itself ends it too";
}

}
