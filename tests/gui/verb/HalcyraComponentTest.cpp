#include "gui/verb/HalcyraComponent.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/verb/TooltipWindow.h"
#include "support/ImageDifference.h"
#include "support/Stage.h"

#include <gmock/gmock.h>

#include <JucePrivateParts.h>
#include <functional>
#include <limits>

namespace
{

namespace parameter = halcyra::parameter;
using testing::ElementsAre;
using testing::IsEmpty;

/** Records notifications: "source 1", "filter 0", "reverb 3", ... */
struct Ear : lumo::HalcyraComponentListener
{
    explicit Ear (HalcyraComponent& c) : component (c) { component.addListener (this); }
    ~Ear() override { component.removeListener (this); }

    void HalcyraSourceChanged (int index) override { note ("source " + std::to_string (index)); }
    void HalcyraSpeakersChanged() override { note ("speakers"); }
    void HalcyraReverbChanged (const HalcyraReverbParameter& p) override { note ("reverb " + std::to_string (p)); }
    void HalcyraFilterChanged (const HalcyraFilter& f) override { note ("filter " + std::to_string (f)); }
    void HalcyraViewerOptionsChanged() override { note ("options"); }
    void HalcyraCloseRequested() override { note ("close"); }

    void note (const std::string& what)
    {
        heard.push_back (what);
        if (leaveWhenTold)
            component.removeListener (this);
    }
    std::vector<std::string> take() { return std::exchange (heard, {}); }

    HalcyraComponent& component;
    std::vector<std::string> heard;
    bool leaveWhenTold = false;
};

class Halcyra : public testing::Test
{
protected:
    Halcyra()
    {
        bench::pumpGui();
        ear.take(); // notifications left from construction
    }

    HalcyraComponent component{ 2, 3, 16 };
    Ear ear{ component };
};

TEST_F (Halcyra, IsMadeOfThreePagesInAWindowOfItsSize)
{
    EXPECT_EQ (component.getNumChildComponents(), 0) << "nothing is made for nobody";
    Stage stage (component);
    EXPECT_EQ (component.getWidth(), 930);
    EXPECT_EQ (component.getHeight(), 440);
    auto* tabs = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
    ASSERT_NE (tabs, nullptr);
    EXPECT_EQ (tabs->getTabNames(), juce::StringArray ({ "Time Structure", "filters", "Ambrel" }));
    EXPECT_TRUE (component.isOpaque());
}

TEST_F (Halcyra, HoldsTheDefaultsOnceItsMessagesHaveRun)
{
    for (const auto& row : halcyra::parameterTable) {
        const float expected = row.number == parameter::tr0 ? 2.0f : halcyra::valueOf ({}, row);
        EXPECT_NEAR (component.reverbParameter (row.number), expected, 1e-4f) << row.key;
    }
    for (int filter = 0; filter < 4; ++filter)
        EXPECT_EQ (component.getFilter (filter), HLShelfParameters{});
    EXPECT_EQ (component.reverbParameter (-1), 0);
    EXPECT_EQ (component.reverbParameter (parameter::count), 0);
}

TEST_F (Halcyra, ASettingActsAtOnceAndIsToldWhenTheTurnEnds)
{
    component.setReverbGain (3);
    component.setAir (false);
    EXPECT_THAT (ear.take(), ElementsAre ("reverb 17")) << "switches at once";
    EXPECT_EQ (component.getReverbGain(), 3);
    bench::pumpGui();
    EXPECT_THAT (ear.take(), ElementsAre ("reverb 0"));
    EXPECT_EQ (component.getReverbGain(), 3);
    component.setReverbGain (3);
    bench::pumpGui();
    EXPECT_THAT (ear.take(), IsEmpty()) << "no change, no message";
}

TEST_F (Halcyra, EachNamedSetterReachesItsFieldAndNoOther)
{
    using Set = void (HalcyraComponent::*) (float);
    using Get = float (HalcyraComponent::*)() const noexcept;
    struct Row
    {
        int number;
        Set set;
        Get get;
        float value;
    };
    using H = HalcyraComponent;
    for (const auto& row :
         { Row{ 1, &H::setTr0, &H::getTr0, 3 }, Row{ 2, &H::setTrl, &H::getTrl, 2 },
           Row{ 3, &H::setTrm, &H::getTrm, 2 }, Row{ 4, &H::setTrh, &H::getTrh, 0.75f },
           Row{ 5, &H::setFl, &H::getFl, 300 }, Row{ 6, &H::setFh, &H::getFh, 9000 },
           Row{ 7, &H::setEarlyStart, &H::getEarlyStart, 10 }, Row{ 8, &H::setEarlyEnd, &H::getEarlyEnd, 50 },
           Row{ 9, &H::setEarlyDistr, &H::getEarlyDistr, 0.25f },
           Row{ 10, &H::setEarlyShape, &H::getEarlyShape, 0.75f }, Row{ 11, &H::setEarlyWidth, &H::getEarlyWidth, 90 },
           Row{ 12, &H::setClusterStart, &H::getClusterStart, 60 },
           Row{ 13, &H::setClusterEnd, &H::getClusterEnd, 120 },
           Row{ 14, &H::setClusterDistr, &H::getClusterDistr, 0.25f },
           Row{ 15, &H::setReverbStart, &H::getReverbStart, 150 },
           Row{ 16, &H::setModalDensity, &H::getModalDensity, 2 },
           Row{ 19, &H::setAirFrequency, &H::getAirFrequency, 5000 } }) {
        (component.*row.set) (row.value);
        bench::pumpGui();
        EXPECT_THAT (ear.take(), ElementsAre ("reverb " + std::to_string (row.number)));
        EXPECT_NEAR ((component.*row.get)(), row.value, 1e-3f) << row.number;
        EXPECT_EQ ((component.*row.get)(), component.reverbParameter (row.number));
    }
}

TEST_F (Halcyra, FiltersAreToldOnlyWhenAskedFor)
{
    component.setRoomFilter ({ 1, 2, 3, 4, 500, 600 }, false);
    EXPECT_THAT (ear.take(), IsEmpty());
    EXPECT_EQ (component.getRoomFilter().Gh, 4);
    component.setClusterFilter ({ 1, 2, 3, 4, 500, 600 }, true);
    EXPECT_THAT (ear.take(), ElementsAre ("filter 3"));
    component.setFilter (4, {}, true);
    component.setFilter (-1, {}, true);
    EXPECT_THAT (ear.take(), IsEmpty());
}

TEST_F (Halcyra, TellsEverythingInItsOrder)
{
    component.sendAllParameters();
    std::vector<std::string> expected{ "source 0", "source 1", "filter 0", "filter 1", "filter 2", "filter 3" };
    for (int number = 0; number < parameter::count; ++number)
        expected.push_back ("reverb " + std::to_string (number));
    expected.insert (expected.end(), { "speakers", "options" });
    EXPECT_EQ (ear.take(), expected);
}

TEST_F (Halcyra, ResetReturnsFiltersFirst)
{
    component.setReverbGain (5);
    component.setDirectFilter ({ 1, 2, 3, 4, 500, 600 }, false);
    bench::pumpGui();
    ear.take();
    component.resetAll();
    EXPECT_THAT (ear.take(), ElementsAre ("filter 0", "filter 1", "filter 2", "filter 3"));
    bench::pumpGui();
    EXPECT_THAT (ear.take(), testing::Contains ("reverb 0"));
    EXPECT_EQ (component.getReverbGain(), 0);
    EXPECT_EQ (component.getDirectFilter(), HLShelfParameters{});
}

TEST_F (Halcyra, WhatIsNotFiniteNeverEnters)
{
    for (const float bad : { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity() }) {
        for (int number = 0; number < parameter::count; ++number)
            component.setReverbParameter (number, bad);
        component.setRoomSize (bad, 1);
        component.setDirectFilter ({ 0, bad, 0, 0, 250, 4000 }, true);
    }
    bench::pumpGui();
    EXPECT_THAT (ear.take(), IsEmpty());
}

TEST_F (Halcyra, WhatIsSetQuietlyNotifiesNobody)
{
    component.setRoomSize (5000, 0);
    component.setDirectFilter ({ 1, 2, 3, 4, 500, 600 }, false);
    bench::pumpGui();
    EXPECT_THAT (ear.take(), IsEmpty());
    EXPECT_EQ (component.getModel().roomSize(), 5000);
    component.setRoomSize (6000, 1);
    bench::pumpGui();
    EXPECT_THAT (ear.take(), testing::Contains ("reverb 15"));
}

TEST_F (Halcyra, SourcesAndSpeakersComeFromThePlane)
{
    component.getPlane()->SetSourcePosition (1, { 1, 2, 0 }, true);
    EXPECT_THAT (ear.take(), ElementsAre ("source 1"));
    EXPECT_EQ (component.getSourcePosition (1), (qel::Point3{ 1, 2, 0 }));
    EXPECT_EQ (component.getSourcePosition (-1), qel::Point3{});
    component.getPlane()->SetSpeakerPosition (2, { 3, 0, 0 }, true);
    EXPECT_THAT (ear.take(), ElementsAre ("speakers"));
    qel::Point3Array positions;
    component.getSpeakerPositions (positions);
    ASSERT_EQ (positions.size(), 3u);
    EXPECT_EQ (positions[2], (qel::Point3{ 3, 0, 0 }));
}

TEST_F (Halcyra, AListenerMayLeaveDuringAWalkAndOthersStillHear)
{
    Ear other (component);
    ear.leaveWhenTold = other.leaveWhenTold = true;
    component.setDirectFilter ({ 1, 0, 0, 0, 250, 4000 }, true);
    component.setDirectFilter ({ 2, 0, 0, 0, 250, 4000 }, true);
    EXPECT_THAT (ear.take(), ElementsAre ("filter 0"));
    EXPECT_THAT (other.take(), ElementsAre ("filter 0"));
}

TEST_F (Halcyra, ControlWAsksToCloseAndTurnsPagesByTheMouse)
{
    Stage stage (component);
    component.grabKeyboardFocus();
    stage.key ("ctrl + w");
    EXPECT_THAT (ear.take(), ElementsAre ("close"));
    stage.key ("w");
    EXPECT_THAT (ear.take(), IsEmpty());

    auto* tabs = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
    for (const int page : { 1, 2, 0 }) {
        stage.click (stage.at (*tabs->getTabbedButtonBar().getTabButton (page)));
        EXPECT_EQ (tabs->getCurrentTabIndex(), page);
        EXPECT_EQ (tabs->getCurrentContentComponent()->getBounds().getWidth(), 918);
        EXPECT_EQ (tabs->getCurrentContentComponent()->getBounds().getHeight(), 399);
    }
    EXPECT_THAT (ear.take(), IsEmpty()) << "turning a page is no edit";
}

TEST_F (Halcyra, AHiddenSettingShowsWhenItsPageIsTurnedTo)
{
    Stage stage (component);
    auto* tabs = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
    const auto before = stage.picture().createCopy();
    tabs->setCurrentTabIndex (1);
    component.setReverbGain (20);
    bench::pumpGui();
    tabs->setCurrentTabIndex (0);
    bench::pumpGui();
    const auto after = stage.picture();
    const auto differ = [&] (juce::Rectangle<int> area) { return differIn (area, before, after); };
    const auto page = stage.at (*tabs->getCurrentContentComponent(), {});
    EXPECT_TRUE (differ ({ page.x + 760, page.y + 200, 50, 10 })) << "the bar of the gain";
    EXPECT_TRUE (differ ({ page.x + 816, page.y + 200, 56, 10 })) << "its value";
    EXPECT_FALSE (differ ({ page.x, page.y + 160, 600, 230 }));
}

TEST (HalcyraComponent, SharesOneTooltipWindowWithOthers)
{
    const auto tooltips = [] {
        int count = 0;
        for (int i = 0; i < juce::Desktop::getInstance().getNumComponents(); ++i)
            count += dynamic_cast<widgets::TooltipWindow*> (juce::Desktop::getInstance().getComponent (i)) != nullptr;
        return count;
    };
    const auto colour = [] {
        const juce::SharedResourcePointer<widgets::TooltipWindow> tooltip;
        return tooltip->getLookAndFeel().findColour (juce::TooltipWindow::backgroundColourId);
    };
    auto first = std::make_unique<HalcyraComponent> (0, 0, 1);
    auto second = std::make_unique<HalcyraComponent> (0, 0, 64);
    EXPECT_EQ (juce::Desktop::getInstance().getNumComponents(), 0) << "no window before the first is opened";
    const auto draw = [] (juce::Component& component) {
        component.setVisible (true);
        component.createComponentSnapshot (component.getLocalBounds());
    };
    draw (*first);
    draw (*second);
    EXPECT_EQ (tooltips(), 0) << "a tip's window is on the desktop only while it shows";
    first.reset();
    EXPECT_EQ (colour(), juce::Colour (0xFF808080));
    second.reset();
    EXPECT_EQ (tooltips(), 0);
}

/** The first descendant for which the test holds, or null. */
juce::Component* below (juce::Component& root, const std::function<bool (juce::Component&)>& test)
{
    for (auto* child : root.getChildren()) {
        if (test (*child))
            return child;
        if (auto* found = below (*child, test))
            return found;
    }
    return nullptr;
}

TEST_F (Halcyra, EveryFrameHasFourSidesAndATitle)
{
    Stage stage (component);
    auto* tabs = dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
    int frames = 0;
    for (int page = 0; page < 2; ++page) {
        tabs->setCurrentTabIndex (page);
        below (*tabs->getCurrentContentComponent(), [&] (juce::Component& child) {
            auto* const frame = dynamic_cast<juce::GroupComponent*> (&child);
            if (frame == nullptr)
                return false;
            ++frames;
            const auto whole = stage.picture();
            const auto title = frame->getText();
            frame->setText ({});
            EXPECT_FALSE (Difference (whole, stage.picture()).isEmpty()) << title;
            frame->setText (title);
            frame->setVisible (false);
            const auto area = component.getLocalArea (frame, frame->getLocalBounds());
            EXPECT_TRUE (Difference (whole, stage.picture()).contains (area.reduced (10))) << title;
            frame->setVisible (true);
            return false;
        });
    }
    EXPECT_EQ (frames, 4 + 4 * 3);
}

TEST (HalcyraComponent, ATipGoesWithThePointerWhichIsPolledOnlyOverOne)
{
    const juce::SharedResourcePointer<widgets::TooltipWindow> tooltip;
    const auto& timer = juce::timerOf (*tooltip);
    juce::Component window;
    window.setSize (1000, 440);
    HalcyraComponent component (0, 0, 1);
    window.addAndMakeVisible (component);
    juce::TextButton foreign ("foreign", "has a tip of its own");
    foreign.setBounds (940, 0, 60, 60);
    window.addAndMakeVisible (foreign);
    Stage stage (window);
    const auto* const toggle = below (component, [] (auto& child) { return child.getName() == "infinite"; });
    ASSERT_NE (toggle, nullptr);
    EXPECT_FALSE (timer.isTimerRunning());
    stage.move (stage.at (*toggle));
    EXPECT_TRUE (timer.isTimerRunning());
    stage.move (stage.at (foreign));
    EXPECT_FALSE (timer.isTimerRunning()) << "hears only of our components";

    window.addChildComponent (*tooltip); // as a window of its own it would need a display
    const auto showAt = [&] (juce::Point<int> pointer) {
        stage.move (pointer);
        tooltip->displayTip (window.localPointToGlobal (pointer), "tip");
        EXPECT_TRUE (tooltip->isVisible());
    };
    const juce::Point<int> ground (5, 435);
    showAt (stage.at (*toggle));
    stage.move (ground);
    EXPECT_FALSE (tooltip->isVisible()) << "the pointer has left its component";
    showAt (ground);
    stage.move (stage.at (*tooltip));
    EXPECT_FALSE (tooltip->isVisible()) << "the pointer has come into it";
}

}
