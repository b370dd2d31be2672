#include "PlanePicture.h"
#include "PlaneRecorder.h"
#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/painting/Drawing.h"

#include <gmock/gmock.h>

#include <chrono>

using lumo::PlaneComponent;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const juce::Colour grey (0xFFB5B5B5), frame (0xFF494949);

}

TEST (PlanePainting, ABackgroundHasItsFrame)
{
    PlaneComponent plane (4, 0, 300);
    plane.SetViewerVisible (false);
    const auto picture = Picture (plane);
    EXPECT_EQ (picture.getPixelAt (0, 150), frame);
    EXPECT_EQ (picture.getPixelAt (150, 150), grey) << "no objects while the viewer is hidden";
}

TEST (PlanePainting, AHiddenViewerZoomsOnItsOwnToo)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetViewerVisible (false);
    plane.SetSourcePosition (0, { 4, 0, 0 }, false);
    plane.RequestAutoZoom (true);
    static_cast<void> (Picture (plane));
    EXPECT_LT (plane.GetSurface().viewTransform.zoom, 0.5f);
}

TEST (PlanePainting, ATransparentBackgroundShowsWhatLiesBehind)
{
    PlaneComponent plane (0, 0, 300);
    plane.SetBackgroundColour (1, 1, 1, 0);
    EXPECT_FALSE (plane.isOpaque());
    EXPECT_EQ (Picture (plane).getPixelAt (5, 5).getAlpha(), 0);
    plane.SetBackgroundColour (juce::Colour (0xFF102030));
    EXPECT_TRUE (plane.isOpaque());
    EXPECT_EQ (Picture (plane).getPixelAt (5, 5), juce::Colour (0xFF102030));
}

/** The cache must be invisible: every setter that affects its contents invalidates it. */
TEST (PlanePainting, AStalePictureIsNeverShown)
{
    struct Row
    {
        const char* name;
        void (*change) (PlaneComponent&);
    };
    const Row rows[] = {
        { "zoom", [] (PlaneComponent& p) { p.SetZoom (0.5f, true); } },
        { "grid", [] (PlaneComponent& p) { p.SetGridMode ("square"); } },
        { "lines", [] (PlaneComponent& p) { p.SetGridSpacing (0.5f); } },
        { "dashes", [] (PlaneComponent& p) { p.SetGridDashed (true); } },
        { "grid colour", [] (PlaneComponent& p) { p.SetGridColour (1, 0, 0, 1, false); } },
        { "divisions", [] (PlaneComponent& p) { p.SetAngularDivisionsVisible (true); } },
        { "legend", [] (PlaneComponent& p) { p.SetLegendVisible (false); } },
        { "legend by address",
          [] (PlaneComponent& p) { p.processOscMessage (qel::OSCMessage ("/legend/visible").add (false)); } },
        { "axis by address",
          [] (PlaneComponent& p) { p.processOscMessage (qel::OSCMessage ("/axis/visible").add (false)); } },
        { "axis colour by address",
          [] (PlaneComponent& p) {
              p.processOscMessage (qel::OSCMessage ("/axis/color").add (1.0f).add (0.0f).add (0.0f).add (1.0f));
          } },
        { "background", [] (PlaneComponent& p) { p.SetBackgroundColour (juce::Colours::navy); } },
        { "view", [] (PlaneComponent& p) { p.SetViewpoint ("front"); } },
        { "offset", [] (PlaneComponent& p) { p.SetXOffset (20); } },
        { "margin", [] (PlaneComponent& p) { p.SetMarkerProportion (0.2f); } },
        { "speaker",
          [] (PlaneComponent& p) {
              p.SetSpeakerPosition (1, { 0.3f, 0.4f, 0 }, false);
          } },
        { "speaker name", [] (PlaneComponent& p) { p.SetSpeakerName (1, "left", false); } },
        { "speaker colour", [] (PlaneComponent& p) { p.SetSpeakerColour (1, 1, 0, 0, 1, false); } },
        { "speaker hidden", [] (PlaneComponent& p) { p.SetSpeakerVisible (1, false, false); } },
        { "speakers hidden", [] (PlaneComponent& p) { p.SetSpeakersVisible (false); } },
        { "speaker size", [] (PlaneComponent& p) { p.SetAllSpeakersProportion (0.2f); } },
        { "number of speakers", [] (PlaneComponent& p) { p.SetNumSpeakers (2, true); } },
        { "hull", [] (PlaneComponent& p) { p.SetHullVisible (true); } },
        { "triangulation", [] (PlaneComponent& p) { p.SetTriangulationVisible (true); } },
        { "radius", [] (PlaneComponent& p) { p.SetSpeakersRadiusVisible (true); } },
        { "projection", [] (PlaneComponent& p) { p.SetSpeakersProjectionVisible (true); } },
        { "listener",
          [] (PlaneComponent& p) {
              p.SetListenerPosition ({ 0.5f, 0, 0 }, false);
          } },
        { "head", [] (PlaneComponent& p) { p.SetListenerYaw (45, false); } },
        { "headphones", [] (PlaneComponent& p) { p.SetHeadphonesVisible (true); } },
        { "shoebox", [] (PlaneComponent& p) { p.SetShoeboxVisible (true); } },
        { "area", [] (PlaneComponent& p) { p.SetAreasVisible (true); } },
        { "area moved",
          [] (PlaneComponent& p) {
              p.SetAreasVisible (true);
              p.SetAreaPoints (0, { { 0, 0, 0 }, { 1, 0, 0 }, { 0, -1, 0 } });
          } },
        { "anchors", [] (PlaneComponent& p) { p.SetAnchorsVisible (true); } },
        { "anchor",
          [] (PlaneComponent& p) {
              p.SetAnchorsVisible (true);
              p.SetAnchorPosition (0, { 0, 0.5f, 0 });
          } },
    };
    for (const auto& row : rows) {
        PlaneComponent plane (2, 5, 300);
        plane.SetSpeakerPosition (0, { 0.2f, 0.1f, 0.4f }, false);
        plane.SetNumAreas (1);
        plane.SetAreaPoints (0, { { -1, 1, 0 }, { 0, 1, 0 }, { 0, 0, 0 }, { -1, 0, 0 } });
        plane.SetNumAnchors (1);
        plane.SetAnchorPosition (0, { 0.5f, -0.5f, 0 });
        const auto before = Picture (plane);
        EXPECT_TRUE (Difference (before, Picture (plane)).isEmpty()) << "the same scene is the same picture";
        row.change (plane);
        EXPECT_FALSE (Difference (before, Picture (plane)).isEmpty()) << row.name;
    }
}

TEST (PlanePainting, TheCacheShowsWhatDrawingWouldShow)
{
    PlaneComponent plane (6, 8, 300);
    plane.SetSpeakersRadiusVisible (true);
    static_cast<void> (Picture (plane));
    const auto cached = Picture (plane);
    plane.SetBackgroundColour (plane.GetSurface().background.colour.withAlpha (0.98f));
    auto drawn = Picture (plane);
    juce::Image over (juce::Image::ARGB, 300, 300, true, juce::SoftwareImageType());
    juce::Graphics g (over);
    g.fillAll (grey);
    g.drawImageAt (drawn, 0, 0);
    int farthest = 0;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
            for (const auto channel : { &juce::Colour::getRed, &juce::Colour::getGreen, &juce::Colour::getBlue })
                farthest = std::max (
                    farthest, std::abs ((over.getPixelAt (x, y).*channel)() - (cached.getPixelAt (x, y).*channel)()));
    EXPECT_LE (farthest, 4);
}

TEST (PlanePainting, SomeLayersBelongToTheTopViewAlone)
{
    PlaneComponent plane (2, 5, 300);
    plane.SetViewpoint ("front");
    const auto before = Picture (plane);
    plane.SetHullVisible (true);
    plane.SetTriangulationVisible (true);
    plane.SetShoeboxVisible (true);
    plane.SetNumAreas (1);
    plane.SetAreaPoints (0, { { -1, 1, 0 }, { 1, 1, 0 }, { 1, -1, 0 } });
    plane.SetAreasVisible (true);
    EXPECT_TRUE (Difference (before, Picture (plane)).isEmpty());
    plane.SetApertureVisible (false);
    EXPECT_TRUE (Difference (before, Picture (plane)).isEmpty());
    plane.SetViewpoint ("top");
    EXPECT_FALSE (Difference (before, Picture (plane)).isEmpty());
}

TEST (PlanePainting, AnIconStandsWhereItIsHit)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetApertureVisible (false);
    plane.SetSourceLabelVisible (0, false);
    plane.SetSourceVisible (0, false, false);
    for (const float zoom : { 0.4f, 1.0f, 1.7f })
        for (const bool topView : { true, false }) {
            plane.SetZoom (zoom, true);
            plane.SetTopView (topView);
            plane.SetSourcePosition (0, { 0.4f, 0.3f, -0.2f }, false);
            const auto without = Picture (plane);
            plane.SetSourceVisible (0, true, false);
            const auto area = Difference (without, Picture (plane));
            plane.SetSourceVisible (0, false, false);
            const auto& source = plane.GetScene().sources[0];
            EXPECT_LE (area.toFloat().getCentre().getDistanceFrom (source.screenPosition), 1.5f);
            const int size = plane.GetSurface().viewTransform.PixelSize (source.Proportion());
            EXPECT_NEAR (area.getWidth(), size, 3);
        }
}

TEST (PlanePainting, TheMarkOfASelectionStandsOnWhatIsSelected)
{
    const auto check = [] (auto&& select, auto&& place) {
        PlaneComponent plane (3, 3, 300);
        plane.SetApertureVisible (false);
        plane.SetSpeakersEditable (true, false);
        plane.SetSpeakersPositions ({ { -0.4f, 0.4f, 0 }, { 0.4f, 0.4f, 0 }, { 0.4f, -0.4f, 0 } }, false);
        const auto before = Picture (plane);
        select (plane);
        const auto mark = Difference (before, Picture (plane));
        EXPECT_TRUE (mark.toFloat().contains (place (plane))) << mark.toString();
        EXPECT_LT (mark.getWidth(), 100);
    };
    for (const std::size_t i : { 0, 1, 2 }) {
        check ([i] (PlaneComponent& plane) { plane.SelectSourceAlone (i); },
               [i] (const PlaneComponent& plane) { return plane.GetScene().sources[i].screenPosition; });
        check ([i] (PlaneComponent& plane) { plane.SelectSpeakerAlone (i); },
               [i] (const PlaneComponent& plane) { return plane.GetScene().speakers[i].screenPosition; });
    }
}

struct MeterRow
{
    float decibels;
    juce::uint32 lowest; // the colour near the bottom of the meter; 0 for the dark box
};

TEST (PlanePainting, AFanOpensTowardsTheMiddleTurnedClockwiseByItsYaw)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetApertureVisible (true);
    plane.SetSourceApertureColour (0, juce::Colours::red);
    plane.SetSourceProportion (0, 0.2f);
    plane.SetSourceAperture (0, 30, false);
    for (const qel::Point3& position : { qel::Point3{ 0.4f, -0.2f, 0 }, { -0.1f, 0.4f, 0 } })
        for (const float degrees : { 0.0f, 90.0f, 180.0f, -90.0f }) {
            plane.SetSourcePosition (0, position, false);
            plane.SetSourceYaw (0, degrees, false);
            const auto at = plane.GetScene().sources[0].screenPosition;
            const auto middle = lumo::Plane::OnScreen (plane.GetSurface().viewTransform, {});
            const auto picture = Picture (plane);
            for (const float turned : { 0.0f, 90.0f, 180.0f, -90.0f }) { // near the edge of the fan
                const auto ahead = (middle - at) * (54 / at.getDistanceFrom (middle));
                const auto place =
                    (at + ahead.rotatedAboutOrigin (qel::radiansPerDegree * (degrees + turned))).roundToInt();
                EXPECT_EQ (picture.getPixelAt (place.x, place.y) == juce::Colours::red, turned == 0)
                    << "at " << position.x << " " << position.y << ", yaw " << degrees << ", turned by " << turned;
            }
        }
}

TEST (PlanePainting, MetersAreDarkUpToTheirLevel)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourcesLevelsVisible (true);
    plane.SetApertureVisible (false);
    plane.SetSourcePosition (0, { 0.4f, -0.4f, 0 }, false);
    const auto colourAt = [&] (float proportion) {
        const auto& source = plane.GetScene().sources[0];
        const auto size = static_cast<float> (plane.GetSurface().viewTransform.PixelSize (source.Proportion()));
        const auto at = source.screenPosition;
        return Picture (plane).getPixelAt (static_cast<int> (at.x + size / 2 + 4.5f),
                                           static_cast<int> (at.y + size * (0.5f - proportion)));
    };
    EXPECT_LT (colourAt (0.2f).getBrightness(), 0.3f) << "silence is a dark box";
    plane.SetSourceLevel (0, -27);
    EXPECT_GT (colourAt (0.2f).getGreen(), 200);
    EXPECT_LT (colourAt (0.8f).getBrightness(), 0.3f);
    plane.SetSourceLevel (0, 6);
    EXPECT_GT (colourAt (0.9f).getRed(), 200);
}

struct CoordinatesRow
{
    qel::Point3 position;
    bool circular, topView;
    const char* text;

    friend std::ostream& operator<< (std::ostream& out, const CoordinatesRow& row) { return out << row.text; }
};

class PlaneCoordinates : public testing::TestWithParam<CoordinatesRow>
{};

TEST_P (PlaneCoordinates, AreMetresOrTheAngleThatADragTurns)
{
    lumo::Plane::Surface surface;
    surface.options.circularConstraint = GetParam().circular;
    surface.viewTransform.topView = GetParam().topView;
    EXPECT_EQ (lumo::Plane::CoordinatesText (GetParam().position, surface), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P (Rows, PlaneCoordinates,
                          testing::Values (CoordinatesRow{ { 0.25f, -0.75f, 12 }, false, true, "(0.3,-0.8,12.0)" },
                                           CoordinatesRow{ { 0.25f, 0, -0.004f }, false, false, "(0.3,0.0,-0.0)" },
                                           CoordinatesRow{ { -2, 2, 5 }, true, true, "135" },
                                           CoordinatesRow{ { -1, 0, 0 }, true, true, "-180" },
                                           CoordinatesRow{ { 0, 3, 3 }, true, false, "45" },
                                           CoordinatesRow{ { 0, 0, -1 }, true, false, "-90" }));

TEST (PlanePainting, TheCoordinatesFollowTheConstraint)
{
    PlaneComponent plane (2, 0, 300);
    plane.SetSourceSelected (0, true, false);
    const auto metres = Picture (plane);
    plane.SetCircularConstraint (true);
    EXPECT_FALSE (Difference (metres, Picture (plane)).isEmpty());
    plane.SetRadiusVisible (true);
    const auto one = Picture (plane);
    plane.SetSourceSelected (1, true, false);
    EXPECT_GT (Difference (one, Picture (plane)).getHeight(), 200) << "the circle goes when two are selected";
}

TEST (PlanePainting, CoordinatesReachInFromASmallObjectOutside)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetApertureVisible (false);
    plane.SetSourceLabelVisible (0, false);
    plane.SetAllSourcesProportion (0.001f);
    plane.SetSourcePosition (0, { -184.0f / plane.GetSurface().viewTransform.pixelsPerMetre, 0.5f, -10000 }, false);
    const auto without = Picture (plane);
    plane.SetSourceSelected (0, true, false);
    EXPECT_FALSE (Difference (without, Picture (plane)).isEmpty());
}

TEST (PlanePainting, DerivedShapesAreRecomputedOnlyWhenASpeakerMoves)
{
    PlaneComponent plane (2, 5, 300);
    PlaneRecorder heard (plane);
    plane.SetSpeakersProjectionVisible (true);
    static_cast<void> (Picture (plane));
    EXPECT_THAT (heard.Take(), ElementsAre ("options", "projection 5"));
    plane.SetSourcePosition (0, { 0, 0.5f, 0 }, false);
    plane.SetZoom (2, true);
    static_cast<void> (Picture (plane));
    EXPECT_THAT (heard.Take ("projection"), IsEmpty());
    plane.SetSpeakerPosition (2, { 0, 3, 0 }, false);
    static_cast<void> (Picture (plane));
    EXPECT_THAT (heard.Take(), ElementsAre ("projection 5"));
}

TEST (PlanePainting, AutoZoomTellsOnceAndThenRests)
{
    PlaneComponent plane (2, 0, 300);
    PlaneRecorder heard (plane);
    plane.SetSourcePosition (0, { 6, 0, 0 }, false);
    plane.RequestAutoZoom (true);
    static_cast<void> (Picture (plane));
    EXPECT_THAT (heard.Take(), ElementsAre ("options"));
    static_cast<void> (Picture (plane));
    static_cast<void> (heard.Take());
    static_cast<void> (Picture (plane));
    EXPECT_THAT (heard.Take(), IsEmpty());
}

TEST (PlanePainting, AHundredDashedLinesAtTheGreatestZoomAreCheap)
{
    PlaneComponent plane (0, 0, 1000);
    plane.SetGridNumLines (100);
    plane.SetGridNumAngularDivisions (36);
    plane.SetAngularDivisionsVisible (true);
    plane.SetGridDashed (true);
    plane.SetZoom (100, true);
    for (const char* mode : { "circular", "square" })
        for (const float offset : { 0.0f, 30000.0f, 4.0e6f }) {
            plane.SetGridMode (mode);
            plane.SetXOffset (offset);
            const auto start = std::chrono::steady_clock::now();
            static_cast<void> (Picture (plane));
            const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
            EXPECT_LT (seconds.count(), 2.0) << mode << " at " << offset; // generous: sanitizers, busy machines
        }
}
