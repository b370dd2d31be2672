#include "PlanePicture.h"
#include "support/files/ScratchFolder.h"

#include <gtest/gtest.h>

using lumo::PlaneComponent;

namespace
{

/** What a layer adds to the picture and where, worked out by hand: on a plane of 300 pixels, centred at 150, where a
    metre is 150 - (150 * 0.1 + 1) = 134 pixels. */
struct LayerRow
{
    const char* name;
    void (*prepare) (PlaneComponent&);
    void (*show) (PlaneComponent&);
    juce::Rectangle<int> place;
    juce::Point<int> probe;
    juce::uint32 colour; // at the probe
};

constexpr juce::uint32 black = 0xFF000000;

void Nothing (PlaneComponent&) {}

/** Half a metre from the axes. */
const qel::Point3Array square{ { -0.5f, 0.5f, 0 }, { 0.5f, 0.5f, 0 }, { 0.5f, -0.5f, 0 }, { -0.5f, -0.5f, 0 } };

const LayerRow layerRows[] = {
    { "shoebox",
      [] (PlaneComponent& p) {
          p.SetShoebox ({ 0, 0, 0 }, { 1, -1, 0 });
      },
      [] (PlaneComponent& p) { p.SetShoeboxVisible (true); },
      { 150, 150, 134, 134 },
      { 283, 200 },
      black },
    { "hull",
      [] (PlaneComponent& p) { p.SetSpeakersPositions (square, false); },
      [] (PlaneComponent& p) { p.SetHullVisible (true); },
      { 82, 82, 136, 136 },
      { 83, 120 },
      black },
    { "triangulation",
      [] (PlaneComponent& p) { p.SetSpeakersPositions (square, false); },
      [] (PlaneComponent& p) { p.SetTriangulationVisible (true); },
      { 80, 80, 140, 140 }, // sharp corners stand out
      { 216, 120 },
      black },
    { "speakers' radius",
      [] (PlaneComponent& p) {
          p.SetSpeakerPosition (0, { 0, 0, 1 }, false);
      },
      [] (PlaneComponent& p) { p.SetSpeakersRadiusVisible (true); },
      { 16, 16, 269, 269 },
      {},
      0 },
    { "area",
      [] (PlaneComponent& p) {
          p.SetNumAreas (1);
          p.SetAreaPoints (0, square);
          p.SetAreaColour (0, juce::Colour (0xFF2A9DA5));
      },
      [] (PlaneComponent& p) { p.SetAreasVisible (true); },
      { 82, 82, 136, 136 },
      { 100, 120 },
      0xFF2A9DA5 },
    { "anchor",
      [] (PlaneComponent& p) {
          p.SetNumAnchors (1);
          p.SetAnchorPosition (0, { 0.5f, -0.5f, 0 });
      },
      [] (PlaneComponent& p) { p.SetAnchorsVisible (true); },
      { 202, 202, 30, 30 },
      { 217, 205 },
      black },
    { "anchor in the front view",
      [] (PlaneComponent& p) {
          p.SetViewpoint ("front");
          p.SetZOffset (20);
          p.SetNumAnchors (1);
          p.SetAnchorPosition (0, { 0.5f, 9, -0.5f });
      },
      [] (PlaneComponent& p) { p.SetAnchorsVisible (true); },
      { 202, 182, 30, 30 },
      { 217, 185 },
      black },
    { "squares",
      [] (PlaneComponent& p) {
          p.SetGridNumLines (2);
          p.SetGridSpacing (0.25f);
      },
      [] (PlaneComponent& p) { p.SetGridMode ("square"); },
      { 83, 83, 135, 135 },
      {},
      0 },
    { "circles on their disc of a metre",
      [] (PlaneComponent& p) {
          p.SetGridNumLines (2);
          p.SetGridSpacing (0.25f);
      },
      [] (PlaneComponent& p) { p.SetGridMode ("circular"); },
      { 16, 16, 269, 269 },
      { 200, 240 },
      0xFFA7A7A7 },
    { "angular divisions, whatever the spacing",
      [] (PlaneComponent& p) {
          p.SetGridNumLines (1);
          p.SetGridSpacing (0.25f);
      },
      [] (PlaneComponent& p) { p.SetAngularDivisionsVisible (true); },
      { 55, 55, 191, 191 }, // the axes cover the vertical and the horizontal line
      {},
      0 },
    { "the radius of the one selected source",
      [] (PlaneComponent& p) {
          p.SetSourcePosition (0, { 0.25f, 0, 0 }, false);
          p.SetSourceRadius (0, 0.5f, false);
          p.SetSourceSelected (0, true, false);
      },
      [] (PlaneComponent& p) { p.SetRadiusVisible (true); },
      { 116, 83, 135, 135 },
      {},
      0 },
    { "the frame of a selected source",
      [] (PlaneComponent& p) {
          p.SetSourcePosition (0, { -0.5f, 0.5f, 0 }, false);
          p.SetSourceProportion (0, 0.1f);
          p.SetSourceCoordinatesVisible (0, false);
      },
      [] (PlaneComponent& p) { p.SetSourceSelected (0, true, false); },
      { 68, 68, 30, 30 },
      { 69, 69 },
      0xFFFFFFFF },
    { "a speaker's meter, over its edge",
      [] (PlaneComponent& p) {
          p.SetNumSpeakers (1, false);
          p.SetSpeakerPosition (0, { 0.5f, 0, 0 }, false);
          p.SetSpeakerProportion (0, 0.1f);
      },
      [] (PlaneComponent& p) { p.SetSpeakersLevelsVisible (true); },
      { 229, 135, 6, 30 },
      {},
      0 },
    { "a source's meter, beside it",
      [] (PlaneComponent& p) {
          p.SetSourcePosition (0, { 0.5f, 0, 0 }, false);
          p.SetSourceProportion (0, 0.1f);
      },
      [] (PlaneComponent& p) { p.SetSourcesLevelsVisible (true); },
      { 234, 135, 5, 30 },
      {},
      0 },
    { "a fan all around, a little farther than its source", // 1.07 times 60 pixels, and its line
      [] (PlaneComponent& p) {
          p.SetSourcePosition (0, { 0.5f, 0, 0 }, false);
          p.SetSourceProportion (0, 0.2f);
          p.SetSourceAperture (0, 180, false);
      },
      [] (PlaneComponent& p) { p.SetApertureVisible (true); },
      { 152, 85, 130, 130 },
      {},
      0 },
    { "a projected speaker",
      [] (PlaneComponent& p) {
          p.SetSpeakerProportion (0, 0.1f);
          p.SetSpeakerNameVisible (0, false);
          for (std::size_t i = 1; i < 4; ++i)
              p.SetSpeakerVisible (i, false, false);
          p.SetSpeakersPositions ({ { 0.1f, 0.1f, 0 }, { 0, -0.5f, 0 }, {}, {} }, false);
      },
      [] (PlaneComponent& p) { p.SetSpeakersProjectionVisible (true); },
      { 188, 89, 19, 28 }, // half a metre from the origin, at 197 and 103; the icon is 0.62 by 0.94 of 30 pixels
      {},
      0 },
};

PlaneComponent& Bare (PlaneComponent& plane)
{
    plane.SetGridMode ("none");
    plane.SetLegendVisible (false);
    plane.SetListenerVisible (false);
    plane.SetSpeakersVisible (false);
    plane.SetApertureVisible (false);
    return plane;
}

void ExpectNear (juce::Rectangle<int> found, juce::Rectangle<int> wanted, const char* name)
{
    constexpr int edgeOfALine = 1;
    EXPECT_NEAR (found.getX(), wanted.getX(), edgeOfALine) << name;
    EXPECT_NEAR (found.getY(), wanted.getY(), edgeOfALine) << name;
    EXPECT_NEAR (found.getRight(), wanted.getRight(), edgeOfALine) << name;
    EXPECT_NEAR (found.getBottom(), wanted.getBottom(), edgeOfALine) << name;
}

}

TEST (PlaneLayers, StandWhereTheirMetresAre)
{
    for (const auto& row : layerRows) {
        PlaneComponent plane (1, 4, 300);
        row.prepare (Bare (plane));
        const auto without = Picture (plane);
        row.show (plane);
        const auto with = Picture (plane);
        ExpectNear (Difference (without, with), row.place, row.name);
        if (row.colour != 0) {
            EXPECT_EQ (with.getPixelAt (row.probe.x, row.probe.y), juce::Colour (row.colour)) << row.name;
        }
    }
}

TEST (PlaneLayers, AGridHasItsNumberOfLinesOnEverySide)
{
    constexpr int beside = 3; // the axes cover their own pixels
    for (const char* mode : { "circular", "square" })
        for (const int number : { 1, 2, 5 }) {
            PlaneComponent plane (0, 0, 300);
            Bare (plane).SetGridMode (mode);
            plane.SetGridSpacing (0.2f);
            plane.SetGridNumLines (0);
            const auto without = Picture (plane);
            plane.SetGridNumLines (static_cast<std::uint32_t> (number));
            const auto with = Picture (plane);
            const auto crossed = [&] (int right, int down) {
                int lines = 0;
                bool isOnLine = false;
                for (juce::Point<int> at (150 + beside, 150 + beside); with.getBounds().contains (at);
                     at += { right, down }) {
                    const bool wasOnLine =
                        std::exchange (isOnLine, with.getPixelAt (at.x, at.y) != without.getPixelAt (at.x, at.y));
                    lines += isOnLine && ! wasOnLine;
                }
                return lines;
            };
            EXPECT_EQ (crossed (1, 0), number) << mode;
            EXPECT_EQ (crossed (-1, 0), number) << mode;
            EXPECT_EQ (crossed (0, 1), number) << mode;
            EXPECT_EQ (crossed (0, -1), number) << mode;
        }
}

TEST (PlaneLayers, TheSidesAreNamedInEachView)
{
    using juce::Justification;
    for (const bool topView : { true, false }) {
        PlaneComponent plane (0, 0, 300);
        Bare (plane).SetTopView (topView);
        const auto named = Picture (plane);
        plane.processOscMessage (qel::OSCMessage ("/axis/label/visible").add (false));
        auto expected = Picture (plane);
        juce::Graphics g (expected);
        g.setColour (plane.GetSurface().axis.colour);
        g.setFont (lumo::Component::MakeFont (14));
        const juce::Rectangle<int> area (2, 2, 298, 298);
        g.drawText (topView ? "front" : "top", area, Justification::centredTop);
        g.drawText (topView ? "back" : "down", area, Justification::centredBottom);
        g.drawText ("left", area, Justification::centredLeft);
        g.drawText ("right", area, Justification::centredRight);
        EXPECT_TRUE (Difference (named, expected).isEmpty()) << topView << Difference (named, expected).toString();
    }
}

/** Otherwise the cross would strike it through. */
TEST (PlaneLayers, AnAnchorsNameHangsBelowItsCross)
{
    PlaneComponent plane (0, 0, 300);
    Bare (plane).SetNumAnchors (1);
    plane.SetAnchorPosition (0, { 0.5f, -0.5f, 0 });
    plane.SetAnchorName (0, "WW");
    plane.SetAnchorsVisible (true);
    const auto without = Picture (plane);
    plane.SetAnchorsLabelVisible (true);
    const auto found = Difference (without, Picture (plane));
    EXPECT_TRUE (juce::Rectangle<int> (217, 217, 45, 45).contains (found)) << found.toString();
    EXPECT_NEAR (found.getCentreX(), 217 + 22, 2);
    EXPECT_NEAR (found.getCentreY(), 217 + 22, 3);
}

/** Text size depends on the platform. */
TEST (PlaneLayers, TheLegendIsNeverCutShort)
{
    PlaneComponent plane (0, 0, 300);
    Bare (plane);
    for (const char* text : { "0.45 m", "6000.00 m" }) {
        const auto without = Picture (plane);
        plane.SetLegendVisible (true);
        const auto found = Difference (without, Picture (plane));
        const auto arrows = 0.2f * 300, letters = lumo::Component::MakeFont (16).getStringWidthFloat (text);
        EXPECT_NEAR (static_cast<float> (found.getWidth()), std::max (arrows, letters), 4) << text;
        EXPECT_NEAR (found.getCentreX(), 255, 2) << text;
        EXPECT_NEAR (found.getBottom(), 294, 2) << text;
        plane.SetLegendVisible (false);
        plane.SetZoom (0.11f, true);
        plane.SetMarkerProportion (0.2f);
    }
}

struct ImageRow
{
    const char* name;
    void (*change) (PlaneComponent&);
    juce::Rectangle<int> place;
};

/** At 8 percent the picture's 13 by 5 pixels become 1 by 0, truncated; a metre of this layer is 134 pixels. */
const ImageRow imageRows[] = {
    { "plain", Nothing, { 16, 150, 279, 107 } },
    { "moved by its own width", [] (PlaneComponent& p) { p.SetBackgroundImageXOffset (1); }, { 0, 150, 161, 107 } },
    { "half as large", [] (PlaneComponent& p) { p.SetBackgroundImageScale (4); }, { 150, 150, 139, 54 } },
    { "turned by a quarter",
      [] (PlaneComponent& p) { p.SetBackgroundImageAngle (juce::MathConstants<float>::halfPi); },
      { 0, 150, 16, 150 } },
    { "at half the zoom", [] (PlaneComponent& p) { p.SetZoom (0.5f, true); }, { 91, 150, 123, 47 } },
};

TEST (PlaneLayers, ABackgroundImageStandsWhereItIsPut)
{
    const ScratchFolder folder;
    const juce::File file (juce::String (folder.file ("plan.png").path().c_str()));
    juce::Image picture (juce::Image::RGB, 13, 5, true, juce::SoftwareImageType());
    juce::FileOutputStream out (file);
    ASSERT_TRUE (juce::PNGImageFormat().writeImageToStream (picture, out));
    out.flush();
    for (const auto& row : imageRows) {
        PlaneComponent plane (0, 0, 300);
        Bare (plane).SetBackgroundImageFile (file);
        plane.SetBackgroundImageScale (8);
        row.change (plane);
        const auto without = Picture (plane);
        plane.SetBackgroundImageVisible (true);
        const auto found = Difference (without, Picture (plane)), wanted = row.place;
        EXPECT_NEAR (found.getX(), wanted.getX(), 2) << row.name;
        EXPECT_NEAR (found.getY(), wanted.getY(), 2) << row.name;
        EXPECT_NEAR (found.getRight(), wanted.getRight(), 2) << row.name;
        EXPECT_NEAR (found.getBottom(), wanted.getBottom(), 2) << row.name;
    }
}
