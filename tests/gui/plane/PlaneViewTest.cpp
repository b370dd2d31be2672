#include "PlaneRecorder.h"
#include "gui/plane/painting/Clipping.h"

#include <gmock/gmock.h>

using lumo::PlaneComponent;
using testing::ElementsAre;

TEST (PlaneZoom, TellsWhatBecameOfAZoomBeyondTheLimits)
{
    PlaneComponent plane (0, 0, 300);
    plane.SetZoom (300, true);
    PlaneRecorder heard (plane);
    plane.SetZoom (300, true);
    EXPECT_THAT (heard.Take(), ElementsAre ("options")) << "who asked holds 300 otherwise, and the view 100";
    plane.SetZoom (100, true);
    EXPECT_THAT (heard.Take(), ElementsAre()) << "that very zoom stands";
}

TEST (PlaneZoomLock, BlocksEveryRoad)
{
    PlaneComponent plane (0, 0, 300);
    plane.SetZoomLock (true);
    PlaneRecorder heard (plane);
    plane.SetZoom (3, true);
    plane.keyPressed (juce::KeyPress ('+', 0, 0));
    plane.AutoZoom (true);
    EXPECT_FLOAT_EQ (plane.GetSurface().viewTransform.zoom, 1);
    EXPECT_THAT (heard.Take(), ElementsAre());
}

TEST (PlaneView, NamesOfViewsAndGridsAreRead)
{
    PlaneComponent plane (0, 0, 300);
    plane.SetViewpoint ("front");
    EXPECT_FALSE (plane.GetSurface().viewTransform.topView);
    plane.SetViewpoint ("side");
    EXPECT_TRUE (plane.GetSurface().viewTransform.topView);

    const struct
    {
        const char *written, *read;
    } rows[] = { { "none", "none" }, { "box", "cartesian" }, { "square", "cartesian" }, { "hexagonal", "circular" } };
    for (const auto& row : rows) {
        plane.SetGridMode (row.written);
        EXPECT_EQ (lumo::Plane::Grid::NameOf (plane.GetSurface().grid.mode), row.read) << row.written;
    }
}

TEST (PlaneOptionsRecord, ReadsTheGridsOwnFlagsAndLeavesTheListenersSelection)
{
    PlaneComponent plane (1, 1, 300);
    lumo::PlaneOptions options;
    options.listenerSelected = true;
    plane.GetOptions (options);
    EXPECT_FALSE (options.angularDivisionsVisible) << "off in the grid, on in a fresh record";
    EXPECT_TRUE (options.listenerSelected);
    plane.SetFrontView (true);
    plane.SetGridSpacing (100);
    plane.SetGridNumLines (1000);
    plane.SetGridNumAngularDivisions (1000);
    plane.GetOptions (options);
    EXPECT_NE (options.topView, options.frontView);
    EXPECT_FLOAT_EQ (options.gridSpacing, 20);
    EXPECT_EQ (options.gridNumLines, 100u);
    EXPECT_EQ (options.gridNumAngularDivisions, 360u);
}

TEST (PlaneAutoZoom, PassesOverWhatIsHidden)
{
    const auto zoomWith = [] (bool farIsVisible) {
        PlaneComponent plane (2, 0, 300);
        plane.SetSourcePosition (0, { 2, 0, 0 }, false);
        plane.SetSourcePosition (1, { 0, 7, 0 }, false);
        plane.SetSourceVisible (1, farIsVisible, false);
        plane.AutoZoom (false);
        return plane.GetSurface().viewTransform.zoom;
    };
    EXPECT_GT (zoomWith (false), 2 * zoomWith (true));
}

TEST (PlaneAutoZoom, BringsTheFarthestSourceJustInsideAndThenRests)
{
    PlaneComponent plane (3, 0, 300);
    for (const float reach : { 0.2f, 5.0f, 40.0f }) {
        plane.SetSourcePosition (1, { reach, 0, 0 }, false);
        plane.AutoZoom (false);
        plane.AutoZoom (false);
        const auto settled = plane.GetSurface().viewTransform.zoom;
        const auto x = plane.GetScene().sources[1].screenPosition.x;
        if (settled > 0.12f && reach > 1) {
            EXPECT_TRUE (x <= 300 && x > 200) << reach << " at " << x;
        }
        PlaneRecorder heard (plane);
        plane.AutoZoom (false);
        EXPECT_THAT (heard.Take(), ElementsAre()) << "nothing changes any more at " << reach;
    }
}

TEST (PlaneAutoZoom, EndsWithoutSourcesAndWithNoneThatCanBeSeen)
{
    PlaneComponent empty (0, 0, 300);
    PlaneRecorder heard (empty);
    empty.AutoZoom (true);
    EXPECT_THAT (heard.Take(), ElementsAre());

    PlaneComponent hidden (2, 0, 300);
    hidden.SetAllSourcesVisible (false, false);
    hidden.SetSourcePosition (0, { 1e30f, 0, 0 }, false);
    hidden.AutoZoom (true);
    EXPECT_FLOAT_EQ (hidden.GetSurface().viewTransform.zoom, 0.11f) << "the first source is looked at all the same";
}

TEST (PlaneClipping, ALineKeepsThePhaseOfItsDashes)
{
    const auto part = lumo::Plane::VisiblePart ({ -1003.0, 50.0, 1e7, 50.0 }, { 0, 0, 100, 100 });
    ASSERT_TRUE (part);
    EXPECT_FLOAT_EQ (part->getStartX(), -3) << "a whole number of periods from the true start";
    EXPECT_FLOAT_EQ (part->getEndX(), 100);
    EXPECT_FALSE (lumo::Plane::VisiblePart ({ -10.0, 200.0, 500.0, 200.0 }, { 0, 0, 100, 100 }));
    EXPECT_FALSE (lumo::Plane::VisiblePart ({ 5.0, 5.0, 5.0, 5.0 }, { 0, 0, 100, 100 }));
}

TEST (PlaneClipping, OnlyTheVisibleArcOfAHugeCircleIsMade)
{
    const juce::Rectangle<float> clip (0, 0, 300, 300);
    const double radius = 3.0e7;
    const auto arc = lumo::Plane::VisibleCircle ({ 150.0f - 3.0e6f, 150.0f }, 3.0e6, clip);
    ASSERT_FALSE (arc.isEmpty());
    EXPECT_LT (arc.getLength(), 1500);
    EXPECT_NEAR (arc.getBounds().getCentreX(), 150, 0.1f) << "precise though the radius is huge";
    EXPECT_TRUE (lumo::Plane::VisibleCircle ({ 150, 150 }, radius, clip).isEmpty());
    EXPECT_TRUE (lumo::Plane::VisibleCircle ({ -1000, 150 }, 500, clip).isEmpty());
    EXPECT_NEAR (lumo::Plane::VisibleCircle ({ 150, 150 }, 100, clip).getLength(), 628.3f, 2);
}
