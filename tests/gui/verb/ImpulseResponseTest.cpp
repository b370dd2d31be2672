#include "gui/verb/HalcyraFiltersTabComponent.h"
#include "gui/verb/HalcyraTimeStructureTabComponent.h"
#include "support/ScaledScreen.h"
#include "support/Stage.h"

#include <gtest/gtest.h>

namespace
{

using halcyra::ImpulseResponseScale;

TEST (ImpulseResponseScale, CoversTimesFromTheLeftEdgeToTheSpan)
{
    const halcyra::ImpulseResponseScale s{ 904, 144, 0.5f };
    EXPECT_EQ (s.span(), 400);
    EXPECT_EQ (s.x (0), 0);
    EXPECT_EQ (s.x (100), 226);
    EXPECT_EQ (s.x (400), 904);
    EXPECT_EQ (s.top (0), 144);
    EXPECT_EQ (s.top (-1), 72);
    EXPECT_EQ (s.top (2), 0);
}

TEST (ImpulseResponseScale, ZoomsBetweenAHundredAndEightHundredMs)
{
    float zoom = halcyra::ImpulseResponseScale::defaultZoom;
    EXPECT_FLOAT_EQ (halcyra::ImpulseResponseScale::zoomed (zoom, 1), 0.5f * std::pow (2.0f, 0.15f));
    EXPECT_EQ (halcyra::ImpulseResponseScale::zoomed (zoom, 1000), 2);
    EXPECT_EQ (halcyra::ImpulseResponseScale::zoomed (zoom, -1000), 0.25f);
}

/** A display of the same size as on its page. */
class ImpulseResponse : public testing::Test
{
protected:
    explicit ImpulseResponse (std::uint32_t numinternals = 2) : display (numinternals) { display.setSize (904, 144); }

    [[nodiscard]] juce::Colour at (float ms, int y) const
    {
        const halcyra::ImpulseResponseScale s{ 904, 144, display.getZoom() };
        return stage.picture().getPixelAt (static_cast<int> (s.x (ms)), y);
    }
    [[nodiscard]] static bool isGreenish (juce::Colour c)
    {
        return c.getGreen() > c.getRed() + 20 && c.getGreen() > c.getBlue() + 20;
    }
    [[nodiscard]] static bool isBluish (juce::Colour c)
    {
        return c.getBlue() > c.getRed() + 40 && c.getBlue() > c.getGreen() + 40;
    }

    lumo::ImpulseResponseComponent display;
    Stage stage{ display };
};

TEST_F (ImpulseResponse, DrawsTapsAtTheirTimesAndTheDecayBehindThem)
{
    display.setReverbStart (300);
    display.setEarlyEnd (82.5f);
    display.setEarlyStart (42.5f);
    display.setClusterEnd (242.5f);
    display.setClusterStart (122.5f); // cluster taps at 80 and 160 in addition to the early ones
    const juce::Colour grey{ 0xFFB5B5B5 };
    for (const float ms : { 42.5f, 82.5f })
        EXPECT_TRUE (isGreenish (at (ms, 140))) << ms;
    for (const float ms : { 122.5f, 162.5f, 202.5f, 242.5f })
        EXPECT_TRUE (isBluish (at (ms, 140))) << ms;
    for (const float ms : { 30.0f, 62.0f, 103.0f, 143.0f, 225.0f })
        EXPECT_EQ (at (ms, 130), grey) << ms << ", where nothing stands";
    EXPECT_EQ (at (290, 130), grey);
    EXPECT_NE (at (310, 130), grey) << "the decay";
    EXPECT_EQ (at (122.5f, 60), grey) << "a gain of one reaches half the height";
}

TEST_F (ImpulseResponse, EachBandDecaysAlongItsCurve)
{
    using Set = void (lumo::ImpulseResponseComponent::*) (float);
    struct Band
    {
        Set set;
        juce::Point<float> control, end; // of a curve from 203, 58 to the bottom
    };
    using Display = lumo::ImpulseResponseComponent;
    const Band bands[] = { { &Display::setTrl, { 270, 105 }, { 396, 107 } },
                           { &Display::setTrm, { 245, 105 }, { 337, 107 } },
                           { &Display::setTrh, { 240, 105 }, { 287, 107 } } };
    constexpr float ratio = 0.2f, start = 100; // of a second, in ms
    display.setReverbStart (start);
    display.setTr0 (1);
    for (const auto& band : bands)
        (display.*band.set) (0);
    const auto without = stage.picture();
    const ImpulseResponseScale scale{ 904, 144, display.getZoom() };
    for (const auto& band : bands) {
        (display.*band.set) (ratio);
        const auto with = stage.picture();
        (display.*band.set) (0);
        juce::Path path;
        path.startNewSubPath (203, 58);
        path.quadraticTo (band.control, band.end);
        path.lineTo (203, 107);
        path.closeSubPath();
        path.scaleToFit (scale.x (start), 72, scale.x (1000 * ratio), 72, false);
        int wrong = 0;
        for (int y = 0; y < 144; ++y)
            for (int x = 0; x < 904; ++x)
                wrong += (with.getPixelAt (x, y) != without.getPixelAt (x, y)) !=
                         path.contains (static_cast<float> (x) + 0.5f, static_cast<float> (y) + 0.5f);
        EXPECT_LT (wrong, scale.x (1000 * ratio)) << "no more than the edge, " << &band - bands;
    }
}

TEST_F (ImpulseResponse, TheShapeTiltsTheEarlyTaps)
{
    display.setEarlyEnd (82.5f);
    display.setEarlyStart (42.5f);
    display.setEarlyShape (0);
    EXPECT_TRUE (isGreenish (at (42.5f, 20))) << "all of the energy";
    EXPECT_FALSE (isGreenish (at (82.5f, 130)));
    display.setEarlyShape (1);
    EXPECT_FALSE (isGreenish (at (42.5f, 130)));
    EXPECT_TRUE (isGreenish (at (82.5f, 20)));
}

TEST_F (ImpulseResponse, TheWheelZoomsAboutTheLeftEdge)
{
    display.setReverbStart (300);
    display.setEarlyEnd (82.5f);
    display.setEarlyStart (42.5f);
    stage.wheel ({ 400, 70 }, 100);
    EXPECT_EQ (display.getZoom(), 2);
    EXPECT_TRUE (isGreenish (at (82.5f, 140)));
    stage.wheel ({ 400, 70 }, -100);
    EXPECT_EQ (display.getZoom(), 0.25f);
    EXPECT_TRUE (isGreenish (at (42.5f, 140)));
}

/** The largest difference of two images in any channel. */
int levelsApart (const juce::Image& a, const juce::Image& b)
{
    int most = 0;
    for (int y = 0; y < a.getHeight(); ++y)
        for (int x = 0; x < a.getWidth(); ++x) {
            const auto p = a.getPixelAt (x, y), q = b.getPixelAt (x, y);
            most = std::max ({ most, std::abs (p.getRed() - q.getRed()), std::abs (p.getGreen() - q.getGreen()),
                               std::abs (p.getBlue() - q.getBlue()) });
        }
    return most;
}

TEST (OverlaidFills, AreThePixelsOfFillsOneOverAnother)
{
    juce::Random random (7);
    for (int turn = 0; turn < 60; ++turn) {
        const float scale = turn % 3 == 0 ? 1.0f : turn % 3 == 1 ? 2.0f : 1.25f;
        const auto transform = juce::AffineTransform::scale (scale);
        std::vector<halcyra::OverlaidFill> fills;
        for (const auto colour : { 0x80FF0000, 0x80AEFF00, 0x800057FF }) {
            juce::Path path;
            path.startNewSubPath (random.nextFloat() * 200 - 20, random.nextFloat() * 60);
            for (int i = 0; i < 5; ++i)
                path.lineTo (random.nextFloat() * 200 - 20, random.nextFloat() * 60);
            path.closeSubPath();
            fills.push_back ({ path, juce::Colour (static_cast<juce::uint32> (colour)) });
        }
        const juce::Rectangle<int> area (random.nextInt (20), random.nextInt (20), 150, 40);
        juce::Image wanted (juce::Image::RGB, 150, 40, true, juce::SoftwareImageType());
        juce::Graphics g (wanted);
        g.fillAll (juce::Colour (0xFFB5B5B5));
        g.setColour (juce::Colours::black);
        g.fillRect (149, 0, 1, 40);
        g.fillRect (0, 39, 150, 1);
        auto image = wanted.createCopy();
        image.clear (image.getBounds().withTrimmedRight (1).withTrimmedBottom (1), juce::Colours::yellow);
        for (const auto& fill : fills) {
            g.setColour (fill.colour);
            g.fillPath (fill.path, transform.translated (-area.getPosition().toFloat()));
        }
        halcyra::overlayFills (image, area, area.withTrimmedRight (1).withTrimmedBottom (1), juce::Colour (0xFFB5B5B5),
                               fills, transform);
        EXPECT_LE (levelsApart (image, wanted), 2) << turn;
    }
}

TEST_F (ImpulseResponse, AnEqualValueKeepsThePicture)
{
    const auto before = stage.picture().createCopy();
    display.setTr0 (1.995f);
    display.setReverbStart (95.37f);
    const auto same = stage.picture();
    for (int x = 0; x < 904; ++x)
        ASSERT_EQ (before.getPixelAt (x, 100), same.getPixelAt (x, 100)) << x;
    display.setReverbStart (200);
    const auto after = stage.picture();
    EXPECT_NE (before.getPixelAt (300, 130), after.getPixelAt (300, 130));
}

/** However little a value repaints, at any scale and subpixel position. */
TEST (ImpulseResponsePicture, PartsShowWhatAWholeRepaintWouldShow)
{
    using Display = lumo::ImpulseResponseComponent;
    struct Row
    {
        void (Display::*set) (float);
        float lowest, highest;
    };
    constexpr Row rows[] = { { &Display::setTr0, 0.01f, 5 },           { &Display::setTrl, 0.01f, 2 },
                             { &Display::setTrm, 0.01f, 2 },           { &Display::setTrh, 0.01f, 2 },
                             { &Display::setReverbStart, 0, 500 },     { &Display::setEarlyStart, 1, 100 },
                             { &Display::setClusterDistr, 0.1f, 0.9f } };
    juce::Random random (3);
    for (int turn = 0; turn < 40; ++turn) {
        constexpr float scales[] = { 1, 1.25f, 1.5f, 2 };
        Display display (8);
        display.setSize (turn == 0 ? 1 : 300 + random.nextInt (100), turn < 2 ? 1 : 97);
        ScaledScreen screen (display, scales[turn % 4], { random.nextInt (10), random.nextInt (10) });
        for (int round = 0; round < 6; ++round) {
            for (int changes = 1 + random.nextInt (2); changes > 0; --changes) {
                const auto& row = rows[random.nextInt (std::size (rows))];
                (display.*row.set) (row.lowest + random.nextFloat() * (row.highest - row.lowest));
            }
            screen.Frame();
            const auto parts = screen.Picture().createCopy();
            display.repaint();
            screen.Frame();
            ASSERT_LE (levelsApart (parts, screen.Picture()), 2) << turn << ", " << round;
        }
    }
}

/** Whatever is kept in the resolution of a screen. */
TEST (EditorPages, AScreenOfAnotherScaleShowsThemAsIfTheyHadBegunThere)
{
    halcyra::ReverbModel model (8);
    using Page = std::unique_ptr<juce::Component>;
    const std::function<Page()> pages[] = {
        [&] { return std::make_unique<HalcyraTimeStructureTabComponent> ("times", model); },
        [&] { return std::make_unique<HalcyraFiltersTabComponent> ("filters", model); },
    };
    for (const auto& make : pages) {
        const auto page = make();
        ScaledScreen screen (*page, 1);
        for (const float scale : { 1.5f, 1.25f, 2.0f, 1.0f }) {
            screen.MoveToScale (scale);
            const auto fresh = make();
            const ScaledScreen other (*fresh, scale);
            EXPECT_LE (levelsApart (screen.Picture(), other.Picture()), 2) << page->getName() << " at " << scale;
        }
    }
}

TEST (ImpulseResponsePicture, AnotherSizeShowsWhatADisplayOfThatSizeWould)
{
    lumo::ImpulseResponseComponent resized (8), fresh (8);
    resized.setVisible (true);
    fresh.setVisible (true);
    resized.setSize (904, 144);
    static_cast<void> (resized.createComponentSnapshot (resized.getLocalBounds()));
    resized.setSize (500, 100);
    fresh.setSize (500, 100);
    EXPECT_EQ (levelsApart (resized.createComponentSnapshot (resized.getLocalBounds()),
                            fresh.createComponentSnapshot (fresh.getLocalBounds())),
               0);
}

TEST_F (ImpulseResponse, ADecayIsNoLongerInSecondsThanItsStartInMs)
{
    display.setReverbStart (1);
    display.setTrl (0.3f);
    display.setTr0 (1);
    const auto one = stage.picture();
    display.setTr0 (2);
    EXPECT_EQ (levelsApart (one, stage.picture()), 0);
    display.setTr0 (0.5f);
    EXPECT_GT (levelsApart (one, stage.picture()), 20);
}

TEST (ImpulseResponsePicture, ADecayRepaintsNoMoreThanWhereDecaysLie)
{
    lumo::ImpulseResponseComponent display (8);
    display.setSize (904, 144);
    ScaledScreen screen (display, 1);
    display.setTr0 (1);
    const auto painted = screen.Frame().getBounds();
    EXPECT_FALSE (painted.isEmpty());
    EXPECT_GT (painted.getX(), 200);
    EXPECT_GE (painted.getY(), 70);
}

TEST_F (ImpulseResponse, DrawsAnyNumberOfTapsInAnySize)
{
    for (const std::uint32_t taps : { 1u, 8u, 9u, 16u, 17u, 64u }) {
        lumo::ImpulseResponseComponent other (taps);
        for (const auto size : { juce::Point<int> (904, 144), { 1, 1 }, { 0, 0 } }) {
            other.setVisible (true);
            other.setSize (size.x, size.y);
            juce::Image image (juce::Image::RGB, 904, 144, true);
            juce::Graphics g (image);
            g.reduceClipRegion (other.getLocalBounds());
            other.paint (g);
            EXPECT_EQ (image.getPixelAt (900, 40) == juce::Colour (0xFFB5B5B5), size.x == 904) << taps;
        }
    }
}

}
