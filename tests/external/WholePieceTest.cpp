#include "ControlTest.h"

#include "gui/plane/PlaneComponent.h"
#include "support/files/ScratchFolder.h"

/** A whole session: a scene is created, styled, stored, saved and freed, and a new object restores it. */
CONTROL_TESTS (WholePiece);

namespace
{

constexpr const char* sizes = "@numsources 8 @numspeakers 8";

constexpr const char* work[] = {
    // the scene
    "source 1 aed -40 0 1",
    "source 2 aed 40 10 1.2",
    "source 3 xyz 0.5 -0.5 0.2",
    "source 4 ad 170 0.8",
    "sourcespositions -1 0 0 1 0 0 0.2 0.9 0",
    "source 5 name voice",
    "source 6 color 1 0.5 0 1",
    "source 7 orientationmode translation",
    "yaw 0 45 90 -90 10 20 30 40",
    "aperture 30 40 50 60 70 80 90 100",
    "speaker 2 xyz 1 1 0",
    "listener xyz 0.1 0.1 0",
    "listener rpy 1 2 30",
    // its style
    "gridmode circular",
    "gridlines 3",
    "dashedgrid 1",
    "gridcolor 1 1 0 1",
    "backgroundcolor 0.2 0.3 0.4 1",
    "showshoebox 1",
    "showspeakershull 1",
    "showsourceslevels 1",
    "sourceslevels -3 -6 -9 -12 -20 -30 -40 -60",
    "numareas 2",
    "zoom 0.8",
    "showaperture 1",
    // the reverb
    "gain -4",
    "tr0 3.5",
    "room gains 0 -3 0 -9",
    "early_shape 0.7",
};

juce::Image sceneOf (TestBox& box)
{
    auto& plane = *box.record<t_halcyra_control>()->plane;
    return plane.createComponentSnapshot (plane.getLocalBounds());
}

int differingPixels (const juce::Image& a, const juce::Image& b)
{
    if (a.getBounds() != b.getBounds())
        return a.getWidth() * a.getHeight();
    int count = 0;
    for (int y = 0; y < a.getHeight(); ++y)
        for (int x = 0; x < a.getWidth(); ++x)
            count += a.getPixelAt (x, y) != b.getPixelAt (x, y) ? 1 : 0;
    return count;
}

}

TEST_P (WholePiece, IsTakenOverByANewObjectDownToThePixel)
{
    const ScratchFolder folder;
    const auto file = folder / "piece.xml";
    auto first = settled (sizes);
    const auto fresh = sceneOf (first);
    for (const auto* message : work) {
        first.send (message);
        settle();
    }
    for (const auto* message : { "store wide", "source 1 aed 0 0 0.5", "store close", "xsnapshot wide close 0.25" }) {
        first.send (message);
        settle();
    }
    first.send ("writesnapshot \"" + file.u8string() + '"');
    settle();
    EXPECT_EQ (first.console(), Messages{ "post file " + file.u8string() + " properly written" });

    const auto state = bench::stateOf (*first).value();
    first.dumpOutlet();
    first.send ("dump");
    const auto dump = first.dumpOutlet();
    const auto picture = sceneOf (first);
    ASSERT_GT (differingPixels (picture, fresh), 1000) << "the work is to be seen";
    first.free();

    auto second = settled (sizes);
    ASSERT_TRUE (bench::setState (*second, state));
    settle();
    second.send ("readsnapshot \"" + file.u8string() + '"');
    settle();
    EXPECT_EQ (second.console(), Messages{ "post file " + file.u8string() + " properly loaded" });
    second.dumpOutlet();
    second.send ("dump");
    EXPECT_EQ (second.dumpOutlet(), dump);
    EXPECT_EQ (differingPixels (sceneOf (second), picture), 0);

    // The snapshots were restored too.
    second.leftOutlet();
    second.send ("recall close");
    settle();
    EXPECT_EQ (second.leftOutlet().at (0), "source 1 aed 0. 0. 0.5");
}
