#include "PlaneOnStage.h"
#include "gui/plane/painting/Foreground.h"
#include "gui/plane/painting/StaticLayer.h"
#include "support/ScaledScreen.h"

#include <random>

using lumo::PlaneComponent;

namespace
{

/** The largest difference of any channel, 0 to 255; counts those above two. */
int FarthestLevels (const juce::Image& a, const juce::Image& b, int* beyondTwo = nullptr)
{
    const juce::Image::BitmapData left (a, juce::Image::BitmapData::readOnly),
        right (b, juce::Image::BitmapData::readOnly);
    int farthest = 0;
    for (int y = 0; y < left.height; ++y)
        for (int x = 0; x < left.width; ++x)
            for (int i = 0; i < 3; ++i) {
                const int levels = std::abs (left.getPixelPointer (x, y)[i] - right.getPixelPointer (x, y)[i]);
                farthest = std::max (farthest, levels);
                if (beyondTwo != nullptr && levels > 2)
                    ++*beyondTwo;
            }
    return farthest;
}

/** Repaints the whole plane, including its static layer. */
void RepaintAll (PlaneComponent& plane) { plane.SetGridColour (plane.GetSurface().grid.colour, false); }

/** After changes the screen shows the same as a full repaint. The renderer loses a 256th of what crosses the right edge
    of a clip, which may add up to a level where many shapes overlap. */
void ExpectAWholeRepaintShowsTheSame (PlaneComponent& plane, ScaledScreen& screen, const std::string& when)
{
    const auto incremental = screen.Picture().createCopy();
    plane.RequestAutoZoom (false); // each frame would try another zoom
    RepaintAll (plane);
    screen.Frame();
    int beyondTwo = 0;
    ASSERT_LE (FarthestLevels (incremental, screen.Picture(), &beyondTwo), 4) << when;
    ASSERT_LE (beyondTwo, 24) << when;
}

class Chance
{
public:
    explicit Chance (unsigned seed) : random (seed) {}

    [[nodiscard]] bool Of (double share) { return std::uniform_real_distribution<> (0, 1) (random) < share; }
    [[nodiscard]] float Between (float low, float high)
    {
        return std::uniform_real_distribution<float> (low, high) (random);
    }
    [[nodiscard]] std::size_t Below (std::size_t number) { return random() % number; }
    [[nodiscard]] juce::Colour Colour() { return juce::Colour (static_cast<juce::uint32> (random())); }
    /** Mostly visible, sometimes all in one place or as far away as possible. */
    [[nodiscard]] qel::Point3 Point()
    {
        if (Of (0.1))
            return { 0.5f, 0.5f, 0.5f };
        if (Of (0.05))
            return { Between (-1, 1) * 1e38f, Between (-1, 1), Between (-1, 1) * 1e38f };
        const float reach = Of (0.1) ? 4.0f : 1.1f;
        return { Between (-reach, reach), Between (-reach, reach), Between (-reach, reach) };
    }
    [[nodiscard]] qel::String Text()
    {
        constexpr const char* texts[] = {
            "1",  "",         "Flöte", "gjpqy", "a name that is much too long for its place by far",
            "ẤẨ", "\u202ejf", " ",     "WWWW"
        };
        return texts[Below (std::size (texts))];
    }

private:
    std::mt19937 random;
};

void Prepare (PlaneComponent& plane, Chance& chance)
{
    plane.SetSpeakersEditable (chance.Of (0.7), false);
    plane.SetListenerEditable (chance.Of (0.5));
    plane.SetListenerProportion (chance.Between (0.05f, 0.4f));
    plane.SetTopView (chance.Of (0.6));
    plane.SetHeadphonesVisible (chance.Of (0.2));
    plane.SetCircularConstraint (chance.Of (0.3), false);
    plane.SetRadiusConstraint (chance.Of (0.1));
    plane.SetRadiusVisible (chance.Of (0.2));
    plane.SetApertureVisible (chance.Of (0.8));
    plane.SetSourcesLevelsVisible (chance.Of (0.4));
    plane.SetSpeakersLevelsVisible (chance.Of (0.4));
    plane.SetSpeakersVisible (chance.Of (0.8));
    plane.SetHullVisible (chance.Of (0.15));
    plane.SetSpeakersRadiusVisible (chance.Of (0.15));
    plane.SetSpeakersProjectionVisible (chance.Of (0.15));
    plane.SetGridMode (static_cast<std::int32_t> (chance.Below (3)));
    plane.SetGridDashed (chance.Of (0.3));
    plane.SetAngularDivisionsVisible (chance.Of (0.3));
    if (chance.Of (0.3))
        plane.SetZoom (chance.Of (0.3) ? 100.0f : chance.Between (0.1f, 4), false);
    if (chance.Of (0.1))
        plane.SetBackgroundColour (juce::Colour (0xFEB5B5B5));
    for (std::size_t i = 0; i < plane.GetNumSources(); ++i) {
        plane.SetSourcePosition (i, chance.Point(), false);
        plane.SetSourceColour (i, chance.Between (0, 1), chance.Between (0, 1), 0, 1, false);
        plane.SetSourceLabel (i, chance.Text(), false);
        plane.SetSourceProportion (i, chance.Between (0.03f, 0.2f));
        plane.SetSourceSelected (i, chance.Of (0.3), false);
        plane.SetSourceLabelVisible (i, chance.Of (0.8));
        plane.SetSourceYawMode (i, static_cast<lumo::Plane::Orientation::Mode> (chance.Below (4)));
        plane.SetSourceAperture (i, chance.Between (10, 180), false);
    }
    for (std::size_t i = 0; i < plane.GetNumSpeakers(); ++i) {
        plane.SetSpeakerPosition (i, chance.Point(), false);
        plane.SetSpeakerName (i, chance.Text(), false);
        plane.SetSpeakerProportion (i, chance.Between (0.03f, 0.2f));
    }
}

juce::MouseEvent EventAt (PlaneComponent& plane, juce::Point<float> at)
{
    constexpr float none = 0;
    return { juce::Desktop::getInstance().getMainMouseSource(),
             at,
             juce::ModifierKeys::leftButtonModifier,
             none,
             none,
             none,
             none,
             none,
             &plane,
             &plane,
             {},
             at,
             {},
             1,
             true };
}

void DragSomething (PlaneComponent& plane, Chance& chance)
{
    const auto from = lumo::Plane::OnScreen (plane.GetSurface().viewTransform,
                                             plane.GetNumSources() > 0 && chance.Of (0.6) ? plane.GetSourcePosition (0)
                                                                                          : chance.Point());
    plane.mouseDown (EventAt (plane, from));
    for (auto steps = chance.Below (3); steps > 0; --steps)
        plane.mouseDrag (
            EventAt (plane, from + juce::Point<float> (chance.Between (-40, 40), chance.Between (-40, 40))));
    if (chance.Of (0.5))
        plane.mouseUp (EventAt (plane, from));
}

/** What may happen between two frames. An invalid index changes nothing. */
using Step = void (*) (PlaneComponent&, Chance&);
const Step steps[] = {
    [] (PlaneComponent& p, Chance& c) { p.SetSourcePosition (c.Below (12), c.Point(), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceAzimuth (c.Below (12), c.Between (-180, 180), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceYaw (c.Below (12), c.Between (-180, 180), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceAperture (c.Below (12), c.Between (10, 180), true); },
    [] (PlaneComponent& p, Chance& c) {
        p.SetSourceYawMode (c.Below (12), static_cast<lumo::Plane::Orientation::Mode> (c.Below (4)));
    },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceLabel (c.Below (12), c.Text(), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceLabelVisible (c.Below (12), c.Of (0.5)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceLabelColour (c.Below (12), c.Colour()); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceCoordinatesVisible (c.Below (12), c.Of (0.5)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceColour (c.Below (12), c.Between (0, 1), 0, 1, 1, true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceApertureColour (c.Below (12), c.Colour()); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceApertureVisible (c.Below (12), c.Of (0.5)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceVisible (c.Below (12), c.Of (0.5), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceEditable (c.Below (12), c.Of (0.5), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceProportion (c.Below (12), c.Between (0.03f, 0.3f)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceRadius (c.Below (12), c.Between (0, 2), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceLevel (c.Below (12), c.Between (-70, 10)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourceSelected (c.Below (12), c.Of (0.5), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakerPosition (c.Below (8), c.Point(), true); },
    [] (PlaneComponent& p, Chance& c) {
        p.SetSpeakersPositions ({ c.Point(), p.GetSpeakerPosition (1) }, true);
    },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakerName (c.Below (8), c.Text(), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakerNameVisible (c.Below (8), c.Of (0.5)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakerColour (c.Below (8), c.Between (0, 1), 0, 1, 1, true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakerVisible (c.Below (8), c.Of (0.5), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakerProportion (c.Below (8), c.Between (0.03f, 0.3f)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakerLevel (c.Below (8), c.Between (-70, 10)); },
    [] (PlaneComponent& p, Chance& c) { p.SetListenerPosition (c.Point(), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetListenerYaw (c.Between (-180, 180), true); },
    [] (PlaneComponent& p, Chance& c) { p.SetListenerOrientation (c.Between (-180, 180), 0, 0, true); },
    [] (PlaneComponent& p, Chance& c) { p.SetZoom (c.Between (0.1f, 3), true); },
    [] (PlaneComponent& p, Chance&) { p.SetTopView (! p.GetSurface().viewTransform.topView); },
    [] (PlaneComponent& p, Chance& c) { p.RequestAutoZoom (c.Of (0.3)); },
    [] (PlaneComponent& p, Chance& c) { p.SelectSpeakerAlone (c.Below (8)); },
    [] (PlaneComponent& p, Chance& c) { p.SelectSourceAlone (c.Below (12)); },
    [] (PlaneComponent& p, Chance&) { p.SetCircularConstraint (! p.GetSurface().options.circularConstraint); },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakersEditable (c.Of (0.7), true); },
    [] (PlaneComponent& p, Chance& c) {
        constexpr int menuItems[] = { 2, 3, 4, 9, 10, 12, 13, 14, 15, 16, 17, 18 };
        p.MenuItemChosen (menuItems[c.Below (std::size (menuItems))]);
    },
    [] (PlaneComponent& p, Chance& c) { p.SetSpeakersLevelsVisible (c.Of (0.5)); },
    [] (PlaneComponent& p, Chance& c) { p.SetSourcesLevelsVisible (c.Of (0.5)); },
    [] (PlaneComponent& p, Chance& c) { p.SetMarkerProportion (c.Between (0.02f, 0.3f)); },
    [] (PlaneComponent& p, Chance& c) { p.ShiftView (c.Between (-9, 9), c.Between (-9, 9)); },
    DragSomething,
    DragSomething,
};

}

/** Whatever changed between two frames, and however little was repainted. */
TEST (PlaneRepaint, ShowsWhatAWholeRepaintWouldShow)
{
    constexpr float scales[] = { 1, 1, 1.25f, 1.5f, 2 };
    for (unsigned seed = 1; seed <= 150; ++seed) {
        Chance chance (seed);
        PlaneComponent plane (chance.Below (13), chance.Below (9), 150);
        const int width = chance.Of (0.05) ? 1 : 100 + static_cast<int> (chance.Below (150));
        plane.setSize (width, chance.Of (0.2) ? 1 : width - 20);
        Prepare (plane, chance);
        ScaledScreen screen (plane, scales[chance.Below (std::size (scales))]);
        for (int round = 0; round < 8; ++round) {
            for (auto frames = 1 + chance.Below (3); frames > 0; --frames) {
                for (auto changes = chance.Of (0.2) ? 20 : 1 + chance.Below (4); changes > 0; --changes)
                    steps[chance.Below (std::size (steps))](plane, chance);
                screen.Frame();
            }
            screen.Frame(); // automatic zoom may request another one
            ASSERT_NO_FATAL_FAILURE (ExpectAWholeRepaintShowsTheSame (
                plane, screen, "seed " + std::to_string (seed) + ", round " + std::to_string (round)));
        }
    }
}

namespace
{

struct Extreme
{
    const char* name;
    void (*prepare) (PlaneComponent&);
};

void MoveAllTo (PlaneComponent& plane, const qel::Point3& point)
{
    for (std::size_t i = 0; i < plane.GetNumSources(); ++i)
        plane.SetSourcePosition (i, point, false);
    for (std::size_t i = 0; i < plane.GetNumSpeakers(); ++i)
        plane.SetSpeakerPosition (i, point, false);
}

const Extreme extremes[] = {
    { "all on one point",
      [] (PlaneComponent& p) {
          MoveAllTo (p, { 0.3f, 0.2f, 0 });
      } },
    { "all as far away as there is",
      [] (PlaneComponent& p) {
          MoveAllTo (p, { 1e38f, -1e38f, 1e38f });
      } },
    { "all just out of sight",
      [] (PlaneComponent& p) {
          MoveAllTo (p, { 1.12f, 0, 0 });
      } },
    { "the least zoom", [] (PlaneComponent& p) { p.SetZoom (0, true); } },
    { "the greatest zoom", [] (PlaneComponent& p) { p.SetZoom (1000, true); } },
    { "one pixel", [] (PlaneComponent& p) { p.setSize (1, 1); } },
};

}

TEST (PlaneRepaint, ShowsWhatAWholeRepaintWouldShowAtTheExtremes)
{
    for (const auto& row : extremes)
        for (const float scale : { 1.0f, 1.25f }) {
            PlaneComponent plane (64, 64, 200);
            plane.SetSpeakersEditable (true, false);
            row.prepare (plane);
            ScaledScreen screen (plane, scale);
            const auto start = plane.GetSourcePosition (7);
            const qel::Point3 step{ 0.05f, 0.03f, 0 };
            for (std::size_t i = 0; i < 5; ++i) {
                plane.SetSourcePosition (i, start + step, true);
                plane.SetSpeakerPosition (i, start + step, true);
                screen.Frame();
                ASSERT_NO_FATAL_FAILURE (ExpectAWholeRepaintShowsTheSame (plane, screen, row.name));
            }
            EXPECT_EQ (plane.GetSourcePosition (4), start + step) << row.name;
        }
}

namespace
{

struct SmallChange
{
    const char* name;
    void (*change) (PlaneComponent&);
};

const SmallChange smallChanges[] = {
    { "source",
      [] (PlaneComponent& p) {
          p.SetSourcePosition (0, { 0.55f, 0.5f, 0 }, true);
      } },
    { "yaw", [] (PlaneComponent& p) { p.SetSourceYaw (0, 30, true); } },
    { "source level", [] (PlaneComponent& p) { p.SetSourceLevel (0, -10); } },
    { "speaker",
      [] (PlaneComponent& p) {
          p.SetSpeakerPosition (0, { -0.5f, 0.45f, 0 }, true);
      } },
    { "speakers, one of which moves",
      [] (PlaneComponent& p) {
          p.SetSpeakersPositions ({ { -0.5f, 0.45f, 0 }, p.GetSpeakerPosition (1) }, true);
      } },
    { "speaker level", [] (PlaneComponent& p) { p.SetSpeakerLevel (0, -10); } },
    { "listener",
      [] (PlaneComponent& p) {
          p.SetListenerPosition ({ 0, -0.05f, 0 }, true);
      } },
    { "listener's yaw", [] (PlaneComponent& p) { p.SetListenerYaw (30, true); } },
};

int AreaOf (const juce::RectangleList<int>& parts)
{
    int pixels = 0;
    for (const auto& part : parts)
        pixels += part.getWidth() * part.getHeight();
    return pixels;
}

/** Objects that move one at a time, far apart. */
struct SparsePlane
{
    SparsePlane()
    {
        plane.SetSourcePosition (0, { 0.5f, 0.5f, 0 }, false);
        plane.SetSpeakerPosition (0, { -0.5f, 0.5f, 0 }, false);
        plane.SetSpeakersEditable (true, false);
        plane.SetSourcesLevelsVisible (true);
        plane.SetSpeakersLevelsVisible (true);
    }
    PlaneComponent plane{ 1, 2, 400 };
};

}

TEST (PlaneRepaint, AsksForWhatChangedAndForNoMore)
{
    for (const bool editable : { false, true })
        for (const auto& row : smallChanges) {
            SparsePlane sparse;
            sparse.plane.SetListenerEditable (editable);
            ScaledScreen screen (sparse.plane, 1);
            const auto before = screen.Picture().createCopy();
            row.change (sparse.plane);
            const int painted = AreaOf (screen.Frame());
            EXPECT_GT (FarthestLevels (before, screen.Picture()), 20) << row.name;
            EXPECT_LT (painted, 400 * 400 / 10) << row.name;
        }
}

TEST (PlaneRepaint, WhatChangedFarApartIsDrawnOnceEach)
{
    SparsePlane sparse;
    ScaledScreen screen (sparse.plane, 1);
    for (const auto& row : smallChanges)
        row.change (sparse.plane);
    const int painted = AreaOf (screen.Frame());
    EXPECT_GT (painted, 0);
    EXPECT_LT (screen.PixelsOfImages(), 2 * painted) << "the layer, and icons on it";
}

TEST (PlaneRepaint, ManyMovesBetweenTwoFramesAskForTheWholeOnce)
{
    PlaneComponent plane (64, 0, 400);
    ScaledScreen screen (plane, 1);
    for (std::size_t i = 0; i < 64; ++i)
        plane.SetSourcePosition (i, { 0.9f - 0.025f * static_cast<float> (i), 0, 0 }, true);
    const auto painted = screen.Frame();
    EXPECT_EQ (painted.getNumRectangles(), 1);
    EXPECT_EQ (AreaOf (painted), 400 * 400);
    plane.SetSourcePosition (0, { 0.9f, 0.1f, 0 }, true);
    EXPECT_LT (AreaOf (screen.Frame()), 400 * 400 / 10) << "the next frame begins anew";
}

TEST (PlaneRepaint, GatedMovesLeaveItToTheCaller)
{
    SparsePlane sparse;
    ScaledScreen screen (sparse.plane, 1);
    sparse.plane.SetImmediateRepaint (false);
    const auto before = screen.Picture().createCopy();
    for (const auto& row : smallChanges)
        row.change (sparse.plane);
    EXPECT_TRUE (screen.Frame().isEmpty());
    sparse.plane.repaint();
    screen.Frame();
    const auto shown = screen.Picture().createCopy();
    EXPECT_GT (FarthestLevels (before, shown), 20);
    RepaintAll (sparse.plane);
    screen.Frame();
    EXPECT_LE (FarthestLevels (shown, screen.Picture()), 2);
}

TEST (PlaneRepaint, APlaneOfAnotherSizeShowsWhatANewOneOfThatSizeDoes)
{
    const auto picture = [] (int before, int after) {
        PlaneComponent plane (2, 3, before);
        plane.createComponentSnapshot (plane.getLocalBounds());
        plane.setSize (after, after);
        return plane.createComponentSnapshot (plane.getLocalBounds());
    };
    for (const int before : { 200, 500 })
        EXPECT_LE (FarthestLevels (picture (before, 300), picture (300, 300)), 2) << before;
}

/** Dragging in a window repaints only the dragged object. */
TEST (PlaneRepaint, ADragPaintsWhatItDrags)
{
    SparsePlane sparse;
    sparse.plane.SetListenerEditable (true);
    ScaledScreen screen (sparse.plane, 1);
    for (const auto from : { qel::Point3{ 0.5f, 0.5f, 0 }, qel::Point3{ -0.5f, 0.5f, 0 }, qel::Point3{} }) {
        const auto at = lumo::Plane::OnScreen (sparse.plane.GetSurface().viewTransform, from);
        sparse.plane.mouseDown (EventAt (sparse.plane, at));
        screen.Frame();
        for (int step = 1; step < 4; ++step) {
            sparse.plane.mouseDrag (EventAt (sparse.plane, at + juce::Point<float> (0, 3.3f) * step));
            const int painted = AreaOf (screen.Frame());
            EXPECT_GT (painted, 0);
            EXPECT_LT (painted, 400 * 400 / 8) << from.x;
        }
        sparse.plane.mouseUp (EventAt (sparse.plane, at));
        screen.Frame();
    }
}

/** The cached static layer and its icons have the screen's own resolution. Letters may be off by a pixel vertically,
    where their line falls between two. */
TEST (PlaneRepaint, TheStaticLayerIsSharpAtEveryScale)
{
    for (const float scale : { 1.0f, 1.25f, 1.5f, 2.0f }) {
        PlaneComponent plane (0, 6, 300);
        plane.SetAllSpeakerNamesVisible (false);
        ScaledScreen screen (plane, scale);
        juce::Image drawn (juce::Image::RGB, screen.Picture().getWidth(), screen.Picture().getHeight(), true,
                           juce::SoftwareImageType());
        {
            juce::Graphics g (drawn);
            g.addTransform (juce::AffineTransform::scale (scale));
            g.fillAll (juce::Colours::black);
            g.reduceClipRegion (plane.getBounds());
            g.setOrigin (plane.getPosition());
            lumo::Plane::DrawStaticLayer (g, plane.GetSurface(), plane.GetScene());
        }
        int different = 0;
        FarthestLevels (screen.Picture(), drawn, &different);
        EXPECT_LT (different, 0.01 * drawn.getWidth() * drawn.getHeight()) << scale; // three channels per pixel
    }
}

/** The window may move, or a display be unplugged, during a drag. */
TEST (PlaneRepaint, ADragGoesOnWhenTheWindowComesToAScreenOfAnotherScale)
{
    SparsePlane sparse;
    auto& plane = sparse.plane;
    ScaledScreen screen (plane, 1);
    const auto at = lumo::Plane::OnScreen (plane.GetSurface().viewTransform, plane.GetSourcePosition (0));
    plane.mouseDown (EventAt (plane, at));
    screen.Frame();
    int step = 0;
    for (const float scale : { 1.5f, 1.25f, 2.0f, 1.0f }) {
        plane.mouseDrag (EventAt (plane, at + juce::Point<float> (2, 3.3f) * ++step));
        screen.MoveToScale (scale);
        plane.mouseDrag (EventAt (plane, at + juce::Point<float> (2, 3.3f) * ++step));
        EXPECT_LT (AreaOf (screen.Frame()), 400 * 400 / 8) << scale;
        ASSERT_NO_FATAL_FAILURE (ExpectAWholeRepaintShowsTheSame (plane, screen, std::to_string (scale)));
    }
    const auto end = lumo::Plane::OnScreen (plane.GetSurface().viewTransform, plane.GetSourcePosition (0));
    EXPECT_LT (end.getDistanceFrom (at + juce::Point<float> (2, 3.3f) * step), 0.01f);
}
