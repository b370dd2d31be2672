#include "gui/plane/Ambrel4LookAndFeel.h"
#include "gui/verb/HalcyraTimeStructureLayout.h"
#include "gui/verb/HalcyraTimeStructureTabComponent.h"
#include "support/ImageDifference.h"
#include "support/Stage.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace
{

namespace parameter = halcyra::parameter;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

const halcyra::ControlPlace& placeOf (HalcyraReverbParameter number)
{
    const auto& places = halcyra::timeStructurePlaces;
    return *std::find_if (std::begin (places), std::end (places),
                          [=] (const halcyra::ControlPlace& place) { return place.number == number; });
}

juce::Rectangle<int> boxOf (HalcyraReverbParameter number) { return placeOf (number).control.rectangle(); }

/** A page on a stage, and the parameters it notifies of. */
class TimeStructure : public testing::Test, protected lumo::HalcyraTimeStructureListener
{
protected:
    TimeStructure()
    {
        tab.setLookAndFeel (look);
        bench::pumpGui();
        tab.setDefaults(); // at first the controls were at their low ends
        bench::pumpGui();
        tab.addListener (this);
    }

    ~TimeStructure() override { tab.setLookAndFeel (nullptr); }

    void timeStructureChanged (HalcyraTimeStructureTabComponent* source, const int& number) override
    {
        EXPECT_EQ (source, &tab);
        heard.push_back (number);
        if (leaveWhenTold)
            tab.removeListener (this);
    }

    [[nodiscard]] float value (HalcyraReverbParameter number) const
    {
        HalcyraTimeStructure record;
        tab.updateTimeStructureField (record, number);
        return halcyra::valueOf (record, *halcyra::parameterRow (number));
    }

    void set (HalcyraReverbParameter number, float wish)
    {
        tab.setParameter (number, wish, 1);
        bench::pumpGui();
    }

    [[nodiscard]] juce::String textAt (halcyra::Box box) const
    {
        for (auto* child : tab.getChildren())
            if (const auto* label = dynamic_cast<halcyra::ValueLabel*> (child);
                label != nullptr && label->getBounds() == box.rectangle())
                return label->shownText();
        return "no label";
    }

    juce::SharedResourcePointer<Ambrel4LookAndFeelV2> look;
    HalcyraTimeStructureTabComponent tab{ "page", 8 };
    Stage stage{ tab };
    std::vector<int> heard;
    bool leaveWhenTold = false;
};

TEST_F (TimeStructure, StartsWithTheDefaultsOnItsSliders)
{
    for (const auto& row : halcyra::parameterTable) {
        const float expected =
            row.number == parameter::tr0 ? 2.0f : halcyra::valueOf ({}, row); // tr0 lies between two steps
        EXPECT_NEAR (value (row.number), expected, 1e-4f) << row.key;
    }
}

struct Ends
{
    HalcyraReverbParameter number;
    float low, high;

    friend std::ostream& operator<< (std::ostream& out, const Ends& ends)
    {
        const auto& row = *halcyra::parameterRow (ends.number);
        return out << row.selector << '_' << row.key;
    }
};

class Sliders : public TimeStructure, public testing::WithParamInterface<Ends>
{};

TEST_P (Sliders, AreDraggedToTheEndsThatTheirNeighboursLeaveAndTellOfNothingElse)
{
    const auto box = boxOf (GetParam().number);
    stage.dragFromTo (box.getCentre(), { box.getX() - 40, box.getCentreY() });
    EXPECT_NEAR (value (GetParam().number), GetParam().low, 1e-3f);
    EXPECT_THAT (heard, testing::AllOf (testing::Not (IsEmpty()), Each (GetParam().number)));
    tab.setDefaults();
    bench::pumpGui();
    heard.clear();
    stage.dragFromTo (box.getCentre(), { box.getRight() + 40, box.getCentreY() });
    EXPECT_NEAR (value (GetParam().number), GetParam().high, 1e-3f);
    EXPECT_THAT (heard, testing::AllOf (testing::Not (IsEmpty()), Each (GetParam().number)));
}

INSTANTIATE_TEST_SUITE_P (
    Rows, Sliders,
    testing::Values (Ends{ parameter::gain, -30, 30 }, Ends{ parameter::tr0, 0.1f, 30 },
                     Ends{ parameter::trl, 0.1f, 10 }, Ends{ parameter::trm, 0.1f, 10 },
                     Ends{ parameter::trh, 0.1f, 1 }, Ends{ parameter::fl, 20, 20000 },
                     Ends{ parameter::fh, 20, 20000 }, Ends{ parameter::earlyStart, 1, 39.71f },
                     Ends{ parameter::earlyEnd, 22.22f, 105.64f }, Ends{ parameter::earlyDistr, 0.1f, 0.9f },
                     Ends{ parameter::earlyShape, 0, 1 }, Ends{ parameter::earlyWidth, 10, 180 },
                     Ends{ parameter::clusterStart, 22.22f, 105.64f }, Ends{ parameter::clusterEnd, 42.47f, 300 },
                     Ends{ parameter::clusterDistr, 0.1f, 0.9f }, Ends{ parameter::reverbStart, 42.47f, 500 },
                     Ends{ parameter::modalDensity, 0.2f, 4 }, Ends{ parameter::airFrequency, 20, 20000 }));

TEST_F (TimeStructure, ADoubleClickReturnsASliderAndTheAirFrequencyFallsToItsLowEnd)
{
    for (const auto& row : halcyra::parameterTable) {
        if (row.isSwitch())
            continue;
        const auto box = boxOf (row.number);
        stage.doubleClick (box.getCentre());
        const double expected = row.number == parameter::airFrequency ? 20
                                : row.number == parameter::tr0        ? 2
                                                                      : row.doubleClick();
        EXPECT_NEAR (static_cast<double> (value (row.number)), expected, 1e-4) << row.key;
        tab.setDefaults();
        bench::pumpGui();
    }
}

TEST_F (TimeStructure, AnAltClickReturnsASliderToo)
{
    const juce::ModifierKeys alt (juce::ModifierKeys::altModifier);
    stage.click (boxOf (parameter::airFrequency).getCentre(), alt);
    EXPECT_EQ (value (parameter::airFrequency), 20);
    set (parameter::gain, 12);
    stage.click (boxOf (parameter::gain).getCentre(), alt);
    EXPECT_EQ (value (parameter::gain), 0);
}

TEST_F (TimeStructure, TheWheelMovesTheSliderUnderThePointer)
{
    stage.wheel (boxOf (parameter::gain).getCentre(), 0.5f);
    EXPECT_GT (value (parameter::gain), 0);
    EXPECT_THAT (heard, testing::AllOf (testing::Not (IsEmpty()), Each (+parameter::gain)));
}

TEST_F (TimeStructure, TheTogglesTellAtOnce)
{
    for (const HalcyraReverbParameter number : { parameter::air, parameter::infinite }) {
        const float before = value (number);
        stage.click (boxOf (number).getCentre());
        EXPECT_EQ (value (number), 1 - before);
        tab.setParameter (number, before, 1);
        EXPECT_EQ (value (number), before);
        tab.setParameter (number, before, 1); // no change, no notification
    }
    EXPECT_THAT (heard, ElementsAre (parameter::air, parameter::air, parameter::infinite, parameter::infinite));
}

TEST_F (TimeStructure, ASilentSetterTellsNothingAndANotifyingOneOnlyOfAChange)
{
    tab.setParameter (parameter::gain, 5, 0);
    tab.setParameter (parameter::tr0, 7, 2);
    tab.setParameter (parameter::air, 0, 0);
    bench::pumpGui();
    EXPECT_THAT (heard, IsEmpty());
    set (parameter::gain, 5);
    EXPECT_THAT (heard, IsEmpty());
    set (parameter::gain, 6);
    EXPECT_THAT (heard, ElementsAre (parameter::gain));
}

TEST_F (TimeStructure, WhatIsNotFiniteOrNoParameterIsIgnored)
{
    for (const float bad : { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                             -std::numeric_limits<float>::infinity() }) {
        for (int number = -1; number <= parameter::count; ++number)
            set (number, bad);
        tab.setRoomSize (bad, 1);
    }
    set (99, 1);
    bench::pumpGui();
    EXPECT_THAT (heard, IsEmpty());
    EXPECT_NEAR (value (parameter::earlyStart), 22.22f, 1e-4f);
}

TEST_F (TimeStructure, TheEarlyEndStopsAtTheClusterEnd)
{
    set (parameter::clusterEnd, 50);
    set (parameter::earlyEnd, 119);
    EXPECT_EQ (value (parameter::earlyEnd), 50);
}

TEST_F (TimeStructure, AMessageSetsTrhNoFurtherThanItsSlider)
{
    for (const float wish : { 5.0f, 11.0f }) {
        set (parameter::trh, wish);
        EXPECT_EQ (value (parameter::trh), 1);
        EXPECT_EQ (textAt (placeOf (parameter::trh).value), "1.00");
    }
}

TEST_F (TimeStructure, ValuesAreShownWithTheirDecimalsAndUnits)
{
    struct
    {
        HalcyraReverbParameter number;
        float wish;
        const char* text;
    } const rows[] = {
        { parameter::gain, -3.5f, "-3.50 dB" },      { parameter::gain, 31, "30.00 dB" },
        { parameter::tr0, 0.1f, "0.10 s" },          { parameter::trl, 10, "10.00" },
        { parameter::trm, 2.345f, "2.35" },          { parameter::fl, 20, "20.0 Hz" },
        { parameter::fh, 30000, "20000.0 Hz" },      { parameter::earlyStart, 0, "1.00 ms" },
        { parameter::earlyEnd, 40, "40.00 ms" },     { parameter::earlyDistr, 0.9f, "0.90" },
        { parameter::earlyShape, 1, "1.00" },        { parameter::earlyWidth, 180, "180.00 deg" },
        { parameter::clusterStart, 50, "50.00 ms" }, { parameter::clusterEnd, 300, "300.00 ms" },
        { parameter::clusterDistr, 0, "0.10" },      { parameter::reverbStart, 500, "500.00 ms" },
        { parameter::modalDensity, 4, "4.00" },      { parameter::airFrequency, 440, "440.0 Hz" },
    };
    for (const auto& row : rows) {
        set (row.number, row.wish);
        EXPECT_EQ (textAt (placeOf (row.number).value), row.text);
    }
    tab.setRoomSize (1234.9f, 0);
    EXPECT_EQ (textAt (halcyra::roomValueBox), "1230 m^3") << "stepped, without decimals";
}

TEST_F (TimeStructure, TheRoomSizeTellsOfEightParametersInOrder)
{
    tab.setRoomSize (15000, 1);
    bench::pumpGui();
    EXPECT_THAT (heard, ElementsAre (7, 8, 9, 12, 13, 14, 15, 16));
    EXPECT_NEAR (value (parameter::reverbStart), 349.36f, 0.01f);
    EXPECT_EQ (value (parameter::clusterEnd), 300);
}

TEST_F (TimeStructure, TheRoomSizeIsDraggedAndDoubleClicked)
{
    const auto box = halcyra::roomSliderBox.rectangle();
    stage.dragFromTo (box.getCentre(), { box.getRight() + 20, box.getCentreY() });
    EXPECT_NEAR (value (parameter::earlyEnd), 97.98f, 0.01f);
    stage.doubleClick (box.getCentre());
    EXPECT_NEAR (value (parameter::earlyEnd), 35.78f, 0.01f) << "0.8 sqrt (2000)";
}

TEST_F (TimeStructure, ResetReturnsWhatWasMovedAndTellsOfThatAlone)
{
    set (parameter::gain, 12);
    set (parameter::fl, 1000);
    tab.setParameter (parameter::infinite, 1, 1);
    heard.clear();
    stage.click (halcyra::resetBox.rectangle().getCentre());
    EXPECT_EQ (value (parameter::gain), 0);
    EXPECT_EQ (value (parameter::fl), 250);
    EXPECT_EQ (value (parameter::infinite), 0);
    EXPECT_THAT (heard, testing::IsSupersetOf ({ +parameter::infinite, +parameter::gain, +parameter::fl }));
    EXPECT_THAT (heard, testing::Not (testing::Contains (+parameter::tr0)));
    EXPECT_EQ (heard.front(), parameter::infinite) << "switches tell before sliders do";
}

TEST_F (TimeStructure, AListenerMayLeaveWhileItIsTold)
{
    leaveWhenTold = true;
    set (parameter::gain, 3);
    set (parameter::gain, 4);
    EXPECT_THAT (heard, ElementsAre (parameter::gain));
}

TEST_F (TimeStructure, ASettingRepaintsItsValueAndLeavesTheRestOfThePage)
{
    const auto before = stage.picture().createCopy();
    set (parameter::gain, 12);
    const auto after = stage.picture();
    const auto differ = [&] (juce::Rectangle<int> area) { return differIn (area, before, after); };
    EXPECT_TRUE (differ (boxOf (parameter::gain)));
    EXPECT_TRUE (differ ({ 816, 200, 56, 10 })) << "its value";
    EXPECT_FALSE (differ ({ 0, 0, 600, 400 }));
    EXPECT_FALSE (differ ({ 608, 215, 300, 180 }));
}

TEST_F (TimeStructure, TheDisplayDrawsTheDecayAndTheStages)
{
    using Display = lumo::ImpulseResponseComponent;
    const struct
    {
        HalcyraReverbParameter number;
        float wish;
        void (Display::*show) (float);
    } rows[] = { { parameter::reverbStart, 150, &Display::setReverbStart },
                 { parameter::tr0, 0.5f, &Display::setTr0 },
                 { parameter::trl, 0.8f, &Display::setTrl },
                 { parameter::trm, 0.6f, &Display::setTrm },
                 { parameter::trh, 0.3f, &Display::setTrh },
                 { parameter::earlyEnd, 60, &Display::setEarlyEnd },
                 { parameter::earlyStart, 30, &Display::setEarlyStart },
                 { parameter::earlyDistr, 0.3f, &Display::setEarlyDistr },
                 { parameter::earlyShape, 0.2f, &Display::setEarlyShape },
                 { parameter::clusterEnd, 250, &Display::setClusterEnd },
                 { parameter::clusterStart, 100, &Display::setClusterStart },
                 { parameter::clusterDistr, 0.7f, &Display::setClusterDistr } };
    Display alone (8);
    alone.setSize (halcyra::displayBox.width, halcyra::displayBox.height);
    alone.setVisible (true);
    for (const auto& row : rows) {
        const auto before = stage.picture();
        set (row.number, row.wish);
        (alone.*row.show) (value (row.number));
        EXPECT_TRUE (differIn (halcyra::displayBox.rectangle(), before, stage.picture())) << row.number;
    }
    const auto shown = stage.picture().getClippedImage (halcyra::displayBox.rectangle());
    const auto wrong = Difference (shown, alone.createComponentSnapshot (alone.getLocalBounds()));
    EXPECT_TRUE (wrong.isEmpty()) << wrong.toString();
}

TEST_F (TimeStructure, PartsOfThePageShowWhatAWholeRepaintWouldShow)
{
    for (const auto& place : halcyra::timeStructurePlaces)
        for (const double share : { 0.2, 0.7 }) {
            const auto& range = halcyra::parameterRow (place.number)->range;
            set (place.number, static_cast<float> (range.lowest + share * (range.highest - range.lowest)));
            const auto parts = stage.picture();
            tab.repaint();
            EXPECT_TRUE (Difference (parts, stage.picture()).isEmpty()) << place.number;
        }
}

}
