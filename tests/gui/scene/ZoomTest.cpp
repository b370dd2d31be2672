#include "gui/scene/Zoom.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace lumo::Plane;

namespace
{

ViewTransform ViewOf (int width, int height, float zoom = 1.0f, bool topView = true)
{
    ViewTransform view;
    view.zoom = zoom;
    view.topView = topView;
    view.Update (width, height);
    return view;
}

}

TEST (ViewTransform, ScaleFollowsTheWidthAlone)
{
    const auto wide = ViewOf (400, 200);
    EXPECT_FLOAT_EQ (wide.ToScreen ({ 1, 0, 0 }).x, 400 - 200 * 0.1f - 1);
    EXPECT_LT (wide.ToScreen ({ 0, 1, 0 }).y, 0) << "one metre up falls outside";
}

TEST (ViewTransform, PixelsGoBackToTheMetresThatTheViewShows)
{
    for (const bool topView : { true, false })
        for (const float zoom : { 0.3f, 1.0f, 40.0f }) {
            auto view = ViewOf (350, 350, zoom, topView);
            view.xOffset = 17;
            view.yOffset = -40;
            view.zOffset = 90;
            const auto back = view.ToWorld (view.ToScreen ({ 0.25f, -0.5f, 0.75f }));
            EXPECT_NEAR (back.x, 0.25f, 1e-4f);
            EXPECT_NEAR (back.y, topView ? -0.5f : 0.0f, 1e-4f);
            EXPECT_NEAR (back.z, topView ? 0.0f : 0.75f, 1e-4f);
        }
}

TEST (ViewTransform, OffsetsMoveRightAndUp)
{
    auto view = ViewOf (300, 300);
    const auto before = view.ToScreen ({});
    view.xOffset = 10;
    view.yOffset = 20;
    EXPECT_FLOAT_EQ (view.ToScreen ({}).x, before.x + 10);
    EXPECT_FLOAT_EQ (view.ToScreen ({}).y, before.y - 20);
}

TEST (ViewTransform, PixelSizesRoundToEvenAndStayBetweenTenAndAThousand)
{
    EXPECT_EQ (ViewOf (205, 205).PixelSize (0.1f), 20) << "20.5 rounds to even";
    EXPECT_EQ (ViewOf (215, 215).PixelSize (0.1f), 22) << "21.5 rounds to even";
    EXPECT_EQ (ViewOf (350, 350, 1.5f).PixelSize (0.1f), 52) << "52.5 is cut";
    EXPECT_EQ (ViewOf (100, 100).PixelSize (0.001f), 10);
    EXPECT_EQ (ViewOf (1600, 1600, 100).PixelSize (1), 1000);
}

TEST (ViewTransform, AScaleThatWouldTurnTheSceneInsideOutIsGuarded)
{
    for (const int size : { 0, 1, 100, 350 }) {
        auto view = ViewOf (size, size, 0.02f);
        view.markerProportion = 1;
        view.Update (size, size);
        EXPECT_GT (view.pixelsPerMetre, 0);
        EXPECT_GT (view.GridScale(), 0);
        EXPECT_TRUE (qel::isFinite (view.ToWorld ({ 3, 4 })));
    }
}

TEST (ViewTransform, FarPointsStayWithinWhatARasteriserCanCount)
{
    const auto place = ViewOf (350, 350, 100).ToScreen ({ 3e38f, -3e38f, 0 });
    EXPECT_LT (std::abs (place.x), 8e6f);
    EXPECT_LT (std::abs (place.y), 8e6f);
}

TEST (Zoom, ClampsAndTellsWhetherTheRequestWasTaken)
{
    constexpr float infinite = std::numeric_limits<float>::infinity();
    const struct
    {
        float wanted, stored;
        bool taken;
    } rows[] = { { 2, 2, true },       { 2, 2, false },     { 1000, 100, true },
                 { 1000, 100, true },  { -3, 0.11f, true }, { infinite, 0.11f, false },
                 { NAN, 0.11f, false } };
    auto view = ViewOf (300, 300);
    bool locked = false;
    Zoom zoom (view, locked);
    for (const auto& row : rows) {
        EXPECT_EQ (zoom.Store (row.wanted), row.taken) << row.wanted;
        EXPECT_FLOAT_EQ (view.zoom, row.stored) << row.wanted;
    }
    locked = true;
    EXPECT_FALSE (zoom.Store (5));
    EXPECT_FLOAT_EQ (view.zoom, 0.11f);
}

TEST (Zoom, FitsAPointInStepsOfAHundredthAndThenRests)
{
    constexpr bool open = false;
    for (const float reach : { 0.1f, 0.7f, 3.0f }) {
        auto view = ViewOf (300, 300);
        const auto fit = [&] {
            view.zoom = Zoom (view, open).Fitting ({ 0, reach, 5 });
            view.Update (300, 300);
            return view.zoom;
        };
        const auto top = [&] (float zoom) { return ViewOf (300, 300, zoom).ToScreen ({ 0, reach, 0 }).y; };
        fit();
        const float settled = fit(); // a search from above ends one step higher than one from below
        EXPECT_NEAR (std::round (settled * 100) / 100, settled, 0.001f) << reach;
        EXPECT_GE (top (settled), 0) << reach;
        EXPECT_LT (top (settled + 0.021f), 0) << reach << " could be shown larger";
        EXPECT_FLOAT_EQ (fit(), settled) << reach;
    }
}
