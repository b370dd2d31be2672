#include "gui/verb/HalcyraFiltersTabComponent.h"
#include "support/ImageDifference.h"
#include "support/Stage.h"

#include <gmock/gmock.h>

#include <limits>

namespace
{

using Curve = lumo::HLShelfFrequencyResponseComponent;
using testing::ElementsAre;

/** The page on a stage, and the filters it notifies of. */
class Filters : public testing::Test, protected Curve::Listener
{
protected:
    Filters()
    {
        for (int filter = 0; filter < 4; ++filter)
            page.getShelf (filter).getResponse().addListener (this);
    }

    void filterChanged (Curve* response) override
    {
        for (int filter = 0; filter < 4; ++filter)
            if (response == &page.getShelf (filter).getResponse())
                heard.push_back (filter);
    }
    void filterClose() override { ++closes; }

    [[nodiscard]] const HLShelfParameters& filter() { return curve.getParameters(); }
    [[nodiscard]] juce::Point<int> handle (double hz, double dB) const
    {
        const halcyra::HLShelfScale s{ 192, 150 };
        return stage.at (curve, { juce::roundToInt (s.x (hz)), juce::roundToInt (s.y (dB)) });
    }
    [[nodiscard]] juce::Point<int> slider (int field) const
    {
        constexpr int left[] = { 15, 44, 76, 108, 148, 180 };
        return stage.at (column, { left[field] + 15, 204 + 55 });
    }

    halcyra::ReverbModel model{ 8 };
    HalcyraFiltersTabComponent page{ "filters", model };
    Stage stage{ page };
    lumo::HLShelfComponent& column = page.getShelf (1);
    Curve& curve = column.getResponse();
    std::vector<int> heard;
    int closes = 0;
};

constexpr double lowCentre = 70.71; // the middle of 20 and 250 Hz on the scale
constexpr double midCentre = 1000;
constexpr double highCentre = 8944.3;

struct HandleRow
{
    float HLShelfParameters::*field;
    double hz;
};

TEST_F (Filters, GainHandlesAreDraggedToBothEnds)
{
    for (const auto& row : { HandleRow{ &HLShelfParameters::Gl, lowCentre },
                             { &HLShelfParameters::Gm, midCentre },
                             { &HLShelfParameters::Gh, highCentre } }) {
        curve.reset();
        heard.clear();
        stage.dragFromTo (handle (row.hz, 0), handle (row.hz, 29.8));
        EXPECT_NEAR (filter().*row.field, 30, 0.5f);
        stage.dragFromTo (handle (row.hz, 29.6), handle (row.hz, -29.6));
        EXPECT_NEAR (filter().*row.field, -29.6f, 0.5f);
        EXPECT_THAT (heard, testing::AllOf (testing::Not (testing::IsEmpty()), testing::Each (1)));
        HLShelfParameters others = filter();
        others.*row.field = 0;
        EXPECT_EQ (others, HLShelfParameters{}) << "no other field moves";
    }
}

TEST_F (Filters, FrequencyHandlesAreTakenAtAnyHeightAndMayCross)
{
    stage.dragFromTo (handle (250, 20), handle (12000, 20));
    EXPECT_NEAR (filter().fl, 12000, 600);
    EXPECT_EQ (filter().fh, 4000);
    stage.dragFromTo (handle (4000, -20), handle (20, -20));
    EXPECT_NEAR (filter().fh, 20, 1);
}

TEST_F (Filters, AClickBesideAllHandlesChangesNothing)
{
    stage.click (handle (midCentre, 20));
    EXPECT_EQ (curve.getSelectedHandle(), -1);
    EXPECT_EQ (filter(), HLShelfParameters{});
    EXPECT_TRUE (heard.empty());
}

TEST_F (Filters, AClickOnAHandleMovesItToThePointer)
{
    stage.press (handle (midCentre, 1));
    EXPECT_EQ (curve.getSelectedHandle(), 1);
    EXPECT_NEAR (filter().Gm, 1, 0.5f);
    stage.release (handle (midCentre, 1));
    EXPECT_EQ (curve.getSelectedHandle(), 1) << "the selection outlives the press";
    stage.move ({ 2, 2 });
    EXPECT_EQ (curve.getSelectedHandle(), -1) << "and ends when the pointer leaves";
}

TEST_F (Filters, AHandleStopsWhereThePointerLeavesTheCurve)
{
    for (const auto& beyond :
         { stage.at (curve, { -9, 30 }), stage.at (curve, { 90, -9 }), stage.at (curve, { 90, 159 }) }) {
        curve.reset();
        stage.press (handle (midCentre, 0));
        stage.drag (handle (midCentre, 10));
        const auto inside = filter();
        stage.drag (beyond);
        EXPECT_EQ (filter(), inside);
        stage.release (beyond);
    }
}

TEST_F (Filters, TheGlobalGainMovesTheHandlesOfTheBands)
{
    curve.setGlobalGain (-10);
    stage.dragFromTo (handle (midCentre, -10), handle (midCentre, 0));
    EXPECT_NEAR (filter().Gm, 10, 0.5f);
}

TEST_F (Filters, TheWheelTurnsTheSelectedHandleAndTellsWithNoneToo)
{
    stage.click (handle (midCentre, 0));
    curve.setMidGain (0);
    stage.wheel (handle (midCentre, 0), 0.5f);
    EXPECT_FLOAT_EQ (filter().Gm, 4.5f);
    stage.wheel (handle (midCentre, 0), 100);
    EXPECT_EQ (filter().Gm, 30);
    stage.click (handle (4000, 20));
    curve.setHighFrequency (4000);
    stage.wheel (handle (4000, 20), -1);
    EXPECT_FLOAT_EQ (filter().fh, 2000);

    stage.click (handle (midCentre, -25));
    heard.clear();
    stage.wheel (handle (midCentre, -25), 0.5f);
    EXPECT_THAT (heard, ElementsAre (1));
}

TEST_F (Filters, SlidersMoveTheirFieldToBothEnds)
{
    constexpr float low[] = { -60, -30, -30, -30, 20, 20 }, high[] = { 10, 30, 30, 30, 20000, 20000 };
    for (int field = 0; field < 6; ++field) {
        const auto& row = halcyra::shelfTable[static_cast<std::size_t> (field)];
        const auto centre = slider (field);
        stage.dragFromTo (centre, centre.translated (0, 90));
        EXPECT_NEAR (filter().*row.value, low[field], 1e-3f) << row.name;
        stage.dragFromTo (centre, centre.translated (0, -90));
        EXPECT_NEAR (filter().*row.value, high[field], 1e-3f) << row.name;
        stage.doubleClick (centre);
        EXPECT_NEAR (filter().*row.value, row.defaultValue(), 1e-3) << row.name;
    }
    EXPECT_THAT (heard, testing::Each (1));
}

TEST_F (Filters, ResetTouchesItsColumnAlone)
{
    page.getShelf (2).setParameters ({ 1, 2, 3, 4, 500, 600 }, false, false);
    column.setParameters ({ 1, 2, 3, 4, 500, 600 }, false, false);
    EXPECT_TRUE (heard.empty()) << "silent settings";
    stage.click (stage.at (column, { 36, 360 }));
    EXPECT_THAT (heard, ElementsAre (1));
    EXPECT_EQ (filter(), HLShelfParameters{});
    EXPECT_EQ (page.getShelf (2).getResponse().getParameters().G0, 1);
}

TEST_F (Filters, AnEqualFilterTellsOnlyWhenForcedAndABadOneNever)
{
    const HLShelfParameters p{ -100, 2, 3, 4, 500, 600 };
    column.setParameters (p, true, false);
    column.setParameters (p, true, false);
    EXPECT_THAT (heard, ElementsAre (1));
    column.setParameters (p, true, true);
    EXPECT_THAT (heard, ElementsAre (1, 1));
    HLShelfParameters bad = p;
    bad.Gm = std::numeric_limits<float>::quiet_NaN();
    column.setParameters (bad, true, true);
    curve.setLowFrequency (std::numeric_limits<float>::infinity());
    EXPECT_EQ (filter(), p) << "its global gain lies beyond the slider, and stays";
    EXPECT_EQ (heard.size(), 2u);
}

TEST_F (Filters, LabelsShowWhatTheFilterHoldsThoughASliderEndsBefore)
{
    const auto texts = [this] {
        juce::StringArray shown;
        for (auto* child : column.getChildren())
            if (const auto* label = dynamic_cast<halcyra::ValueLabel*> (child))
                shown.add (label->shownText());
        return shown.joinIntoString (", ");
    };
    column.setParameters ({ -100, 3, -3.5f, 0, 999, 1500 }, false, false);
    EXPECT_EQ (texts(), "-100 dB, +3 dB, -3.5 dB, 0 dB, 999 Hz, 1500 Hz");
    EXPECT_EQ (filter().G0, -100);
    column.setParameters ({ 30, -30, 14.25f, 0.5f, 20, 20000 }, true, false);
    EXPECT_EQ (texts(), "+30 dB, -30 dB, +14.3 dB, +0.5 dB, 20 Hz, 20 kHz");
    EXPECT_EQ (filter().G0, 30);
}

TEST_F (Filters, TheCloseKeyIsToldAndTravelsOn)
{
    EXPECT_FALSE (column.keyPressed (juce::KeyPress ('w', juce::ModifierKeys::ctrlModifier, 0)));
    EXPECT_EQ (closes, 1);
    EXPECT_FALSE (column.keyPressed (juce::KeyPress ('w')));
    EXPECT_EQ (closes, 1);
}

TEST_F (Filters, TheHandlesShowOnlyUnderThePointer)
{
    const auto corner = stage.at (curve, {});
    const auto before = stage.picture().getPixelAt (corner.x + 115, corner.y + 20);
    stage.move (handle (midCentre, 20));
    const auto line = handle (4000, 22);
    const auto shown = stage.picture().getPixelAt (line.x, line.y);
    stage.move ({ 2, 2 });
    EXPECT_NE (stage.picture().getPixelAt (line.x, line.y), shown);
    EXPECT_EQ (stage.picture().getPixelAt (corner.x + 115, corner.y + 20), before);
}

TEST_F (Filters, ASelectedGainSaysItsValueAtItsHandleAndACrossoverNone)
{
    const struct
    {
        double hz;
        float HLShelfParameters::*field; // null for a crossover
    } handles[] = { { lowCentre, &HLShelfParameters::Gl },
                    { midCentre, &HLShelfParameters::Gm },
                    { highCentre, &HLShelfParameters::Gh },
                    { 250, nullptr },
                    { 4000, nullptr } };
    for (const auto& row : handles) {
        const auto spot = handle (row.hz, row.field != nullptr ? 0 : 29);
        stage.click (spot);
        ASSERT_NE (curve.getSelectedHandle(), -1);
        const auto selected = stage.picture();
        stage.click (handle (midCentre, -25));
        ASSERT_EQ (curve.getSelectedHandle(), -1);
        const auto silent = stage.picture();
        if (row.field == nullptr) {
            EXPECT_TRUE (Difference (selected, silent).isEmpty()) << row.hz;
            continue;
        }
        const auto isWrittenAt = [&] (juce::Point<int> at) {
            auto written = silent.createCopy();
            juce::Graphics g (written);
            g.setFont (juce::Font (halcyra::HLShelfGrid::fontHeight));
            g.drawText (juce::String (filter().*row.field, 1) + " dB",
                        juce::Rectangle<int> (40, 40).withPosition (at.translated (-20, -20)),
                        juce::Justification::centred, false);
            return Difference (selected, written).isEmpty();
        };
        // The handle's place is rounded down.
        EXPECT_TRUE (isWrittenAt (spot) || isWrittenAt (spot.translated (-1, 0)) ||
                     isWrittenAt (spot.translated (0, -1)) || isWrittenAt (spot.translated (-1, -1)))
            << row.hz;
    }
}

TEST_F (Filters, TheCurveIsFilledUpToItsGain)
{
    stage.move ({ 2, 2 });
    static_cast<void> (stage.picture()); // of the curve before
    curve.setGlobalGain (10);
    const auto picture = stage.picture();
    const auto under = stage.at (curve, { 60, 60 }), above = stage.at (curve, { 60, 40 });
    const auto fill = picture.getPixelAt (under.x, under.y);
    EXPECT_GT (fill.getBlue(), fill.getRed() + 40);
    int unfilled = 0;
    for (int x = 0; x < curve.getWidth(); ++x) {
        const auto foot = stage.at (curve, { x, curve.getHeight() - 2 });
        const auto colour = picture.getPixelAt (foot.x, foot.y);
        unfilled += colour.getBlue() > colour.getRed() + 40 ? 0 : 1;
    }
    EXPECT_EQ (unfilled, 0) << "from edge to edge";
    const auto free = picture.getPixelAt (above.x, above.y);
    EXPECT_NEAR (free.getBlue(), free.getRed(), 2);
}

TEST (HLShelfGrid, FrequenciesOfOneTwoAndFiveHaveTexts)
{
    halcyra::HLShelfGrid grid;
    grid.setSize (3000, 150); // wide enough that no text reaches another line
    const auto picture = grid.createComponentSnapshot (grid.getLocalBounds());
    const halcyra::HLShelfScale s{ 3000, 150 };
    const struct
    {
        double hz;
        const char* text;
    } rows[] = { { 50, "50" },     { 100, "100" }, { 200, "200" }, { 500, "500" },
                 { 1000, "1000" }, { 2000, "2k" }, { 5000, "5k" }, { 10000, "10k" } };
    // Two strips between lines of gains: without and with texts of frequencies.
    auto expected = picture.getClippedImage ({ 0, 51, 3000, 10 }).createCopy(),
         found = picture.getClippedImage ({ 0, 64, 3000, 10 }).createCopy();
    juce::Graphics g (expected), onFound (found);
    g.setFont (halcyra::HLShelfGrid::frequencyFont());
    for (const auto& row : rows) {
        const auto x = static_cast<int> (s.x (row.hz));
        g.setColour (juce::Colour (0xFF808080).withAlpha (0.6f));
        g.drawFittedText (row.text, { x - 20, -1, 40, 12 }, juce::Justification::centred, 1);
        for (auto* cover : { &g, &onFound }) { // lines of decades lie over their texts
            cover->setColour (juce::Colours::black);
            cover->fillRect (x - 1, 0, 3, 10);
            cover->fillRect (0, 0, 25, 10); // the texts of gains
        }
    }
    EXPECT_TRUE (Difference (expected, found).isEmpty()) << Difference (expected, found).toString();
}

TEST (HLShelfGrid, TheTextsOfNeighbouringFrequenciesKeepApart)
{
    const halcyra::HLShelfScale s{ 192, 150 };
    const auto font = halcyra::HLShelfGrid::frequencyFont();
    const auto half = [&] (const char* text) { return 0.5 * static_cast<double> (font.getStringWidthFloat (text)); };
    struct
    {
        const char *left, *right;
        double lower, upper;
    } const rows[] = {
        { "50", "100", 50, 100 },     { "100", "200", 100, 200 },   { "200", "500", 200, 500 },
        { "500", "1000", 500, 1000 }, { "1000", "2k", 1000, 2000 },
    };
    for (const auto& row : rows)
        EXPECT_GT (s.x (row.upper) - s.x (row.lower), half (row.left) + half (row.right) + 1) << row.right;
}

}
