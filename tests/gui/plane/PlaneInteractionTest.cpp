#include "PlaneOnStage.h"
#include "gui/plane/interaction/HitTest.h"

#include <random>

using lumo::PlaneComponent;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Keys = juce::ModifierKeys;

namespace
{

const juce::Point<int> emptyGround{ 100, 90 };

}

TEST_F (PlaneOnStage, AClickSelectsAndTellsInOrder)
{
    stage.press (Source (1));
    EXPECT_THAT (heard.Take(), ElementsAre ("button on", "pointer 1.00 0.00 0.00", "selection 0100"));
    stage.release (Source (1));
    EXPECT_THAT (heard.Take(), ElementsAre ("button off"));
}

TEST_F (PlaneOnStage, ShiftTogglesAndAGroupIsKept)
{
    stage.click (Source (0));
    stage.click (Source (1), Keys::shiftModifier);
    EXPECT_EQ (Selected(), "1100");
    stage.click (Source (0));
    EXPECT_EQ (Selected(), "1100") << "a click on a selected source keeps the group";
    stage.click (Source (0), Keys::shiftModifier);
    EXPECT_EQ (Selected(), "0100");
    stage.click (Source (3));
    EXPECT_EQ (Selected(), "0001");
    stage.click (emptyGround);
    EXPECT_EQ (Selected(), "0000");
}

TEST_F (PlaneOnStage, ADragMovesTheSelectedSourcesAndNoOthers)
{
    stage.click (Source (0));
    stage.click (Source (1), Keys::shiftModifier);
    const auto first = plane.GetSourcePosition (0), second = plane.GetSourcePosition (1);
    static_cast<void> (heard.Take());
    stage.press (Source (1));
    stage.drag (Source (1).translated (-30, 20));
    stage.release (Source (1));
    const auto metre = plane.GetSurface().viewTransform.pixelsPerMetre;
    EXPECT_NEAR (plane.GetSourcePosition (0).x, first.x - 30 / metre, 0.02f);
    EXPECT_NEAR (plane.GetSourcePosition (1).y, second.y - 20 / metre, 0.02f);
    EXPECT_EQ (plane.GetSourcePosition (2).z, 0);
    const auto lines = heard.Take ("source");
    EXPECT_EQ (lines.size(), 2u) << "one line for each source that moved";
}

TEST_F (PlaneOnStage, AShiftClickedAwaySourceDoesNotMove)
{
    stage.click (Source (1));
    static_cast<void> (heard.Take());
    stage.press (Source (1), Keys::shiftModifier);
    stage.drag (Source (1).translated (-40, 0), Keys::shiftModifier);
    EXPECT_THAT (heard.Take ("source"), IsEmpty());
}

TEST_F (PlaneOnStage, InTheFrontViewADragLeavesTheDepth)
{
    plane.SetViewpoint ("front");
    plane.SetSourcePosition (0, { -0.5f, 0.75f, 0.25f }, false);
    stage.dragFromTo (Source (0), Source (0).translated (20, -30));
    EXPECT_EQ (plane.GetSourcePosition (0).y, 0.75f);
    EXPECT_GT (plane.GetSourcePosition (0).z, 0.4f);
    EXPECT_GT (plane.GetSourcePosition (0).x, -0.4f);
}

TEST_F (PlaneOnStage, ALassoSelectsWhatItHolds)
{
    stage.press (emptyGround);
    EXPECT_TRUE (plane.GetSurface().lasso.active);
    stage.drag ({ 299, 299 });
    EXPECT_EQ (Selected(), "0110");
    stage.drag ({ 120, 299 });
    EXPECT_EQ (Selected(), "0000") << "it lets go again";
    stage.drag ({ 5000, -5000 });
    EXPECT_FLOAT_EQ (plane.GetSurface().lasso.area.getRight(), 300) << "kept inside the component";
    stage.release ({ 0, 0 });
    EXPECT_FALSE (plane.GetSurface().lasso.active);
}

TEST_F (PlaneOnStage, TheCircularConstraintTurnsTheSelectionAboutTheOrigin)
{
    plane.SetCircularConstraint (true);
    plane.SetSourcePosition (0, { 0, 0.8f, 0.3f }, false);
    stage.dragFromTo (At ({ 0, 0.8f, 0 }), At ({ 0.8f, 0, 0 }));
    const auto p = plane.GetSourcePosition (0);
    EXPECT_NEAR (std::hypot (p.x, p.y), 0.8f, 0.01f);
    EXPECT_NEAR (p.x, 0.8f, 0.02f);
    EXPECT_EQ (p.z, 0.3f);

    stage.click (emptyGround);
    static_cast<void> (heard.Take());
    stage.dragFromTo (emptyGround, emptyGround.translated (9, 9));
    EXPECT_THAT (heard.Take ("source"), IsEmpty()) << "the lasso goes before turning the whole scene";
}

TEST_F (PlaneOnStage, WithNoSourceEditableADragTurnsAllSpeakers)
{
    plane.SetNumSpeakers (3, false);
    plane.SetSpeakersPositions ({ { 1, 0, 0 }, { 0, 1, 0 }, { -1, 0, 0 } }, false);
    plane.SetSourcesEditable (false, false);
    plane.SetCircularConstraint (true);
    stage.press (At ({ 0.3f, 0.3f, 0 }));
    static_cast<void> (heard.Take());
    stage.drag (At ({ -0.3f, 0.3f, 0 }));
    EXPECT_NEAR (plane.GetSpeakerPosition (0).y, 1, 0.03f);
    EXPECT_THAT (heard.Take ("speakers"), ElementsAre ("speakers 3"));
}

TEST_F (PlaneOnStage, ASpeakerBeatsTheListenerAndTheListenerASource)
{
    plane.SetNumSpeakers (1, false);
    plane.SetSpeakerPosition (0, { 0.05f, 0, 0 }, false);
    plane.SetSourcePosition (2, {}, false);
    plane.SetListenerEditable (true);
    static_cast<void> (heard.Take());
    stage.press (At ({}));
    EXPECT_THAT (heard.Take(),
                 ElementsAre ("button on", "pointer 0.00 0.00 0.00", "speakerselection 0 on", "selection 0000"));
    stage.drag (At ({ 0.5f, 0.5f, 0 }));
    stage.release (At ({ 0.5f, 0.5f, 0 }));
    EXPECT_NEAR (plane.GetSpeakerPosition (0).x, 0.55f, 0.02f);

    stage.press (At ({}));
    EXPECT_THAT (heard.Take(), Contains ("speakerselection 0 off"));
    EXPECT_TRUE (plane.GetSurface().options.listenerSelected);
    stage.drag (At ({ -0.5f, 0, 0 }));
    EXPECT_NEAR (plane.GetListenerPosition().x, -0.5f, 0.02f);
    EXPECT_THAT (heard.Take ("listener"), ElementsAre ("listener -0.50 0.00 0.00"));
}

TEST_F (PlaneOnStage, TheHandLeavesAloneWhatMayNotBeEdited)
{
    struct Guarded
    {
        const char* name;
        qel::Point3 place;
        void (*guard) (PlaneComponent&);
        bool isShownStill; // if not, it must have been selected before
    };
    const qel::Point3 ofListener{ 0.4f, -0.4f, 0 }, ofSpeaker{ -0.4f, -0.4f, 0 }, ofSource{ 0, 1, 0 };
    const Guarded rows[] = {
        { "sources", ofSource,
          [] (PlaneComponent& p) {
              p.SetSourcesEditable (false, false);
              p.SetSpeakersEditable (false, false); // rotation of speakers while sources may not rotate
          },
          true },
        { "source", ofSource, [] (PlaneComponent& p) { p.SetSourceVisible (0, false, false); }, false },
        { "speakers", ofSpeaker, [] (PlaneComponent& p) { p.SetSpeakersEditable (false, false); }, true },
        { "speakers under headphones", ofSpeaker, [] (PlaneComponent& p) { p.SetHeadphonesVisible (true); }, true },
        { "hidden speakers", ofSpeaker, [] (PlaneComponent& p) { p.SetSpeakersVisible (false); }, false },
        { "hidden speaker", ofSpeaker, [] (PlaneComponent& p) { p.SetSpeakerVisible (0, false, false); }, false },
        { "listener", ofListener, [] (PlaneComponent& p) { p.SetListenerEditable (false); }, true },
        { "hidden listener", ofListener, [] (PlaneComponent& p) { p.SetListenerVisible (false); }, false },
    };
    plane.SetNumSpeakers (1, false);
    for (const auto& row : rows)
        for (const bool isChosenBefore : { false, true }) {
            if (isChosenBefore && ! row.isShownStill)
                continue;
            plane.SetSourcesEditable (true, false);
            plane.SetSourceVisible (0, true, false);
            plane.SetHeadphonesVisible (false);
            plane.SetSpeakersVisible (true);
            plane.SetSpeakerVisible (0, true, false);
            plane.SetSpeakersEditable (true, false);
            plane.SetListenerVisible (true);
            plane.SetListenerEditable (true);
            plane.SetSourcePosition (0, ofSource, false);
            plane.SetSpeakerPosition (0, ofSpeaker, false);
            plane.SetListenerPosition (ofListener, false);
            stage.click (emptyGround);
            if (isChosenBefore)
                stage.click (At (row.place));
            row.guard (plane);
            static_cast<void> (heard.Take());
            for (const int keys : { 0, int (Keys::ctrlModifier), int (Keys::altModifier), int (Keys::shiftModifier) })
                stage.wheel (At (row.place), 0.5f, keys);
            plane.SetZoom (1, false);
            for (const bool turns : { false, true }) {
                plane.SetCircularConstraint (turns);
                stage.press (At (row.place));
                stage.drag (At (row.place).translated (9, 9));
                stage.drag (At (row.place).translated (9, 29));
                stage.release (At (row.place).translated (9, 29));
            }
            plane.SetCircularConstraint (false);
            const auto said = heard.Take();
            for (const auto& line : said)
                EXPECT_THAT (line.substr (0, line.find (' ')),
                             testing::AnyOf ("button", "pointer", "selection", "speakerselection", "options"))
                    << row.name << (isChosenBefore ? ", chosen before" : "");
            EXPECT_EQ (plane.GetSourcePosition (0), ofSource) << row.name;
            EXPECT_EQ (plane.GetSpeakerPosition (0), ofSpeaker) << row.name;
            EXPECT_EQ (plane.GetListenerPosition(), ofListener) << row.name;
        }
}

TEST_F (PlaneOnStage, ADoubleClickIsTold)
{
    stage.doubleClick (Source (2));
    EXPECT_THAT (heard.Take ("doubleclick"), ElementsAre ("doubleclick 2"));
    stage.doubleClick (emptyGround);
    EXPECT_THAT (heard.Take ("doubleclick"), IsEmpty());
}

TEST_F (PlaneOnStage, SixtyFourMovesInOneTurnCostOneRepaint)
{
    struct Counter : PlaneComponent
    {
        Counter() : PlaneComponent (64, 8, 300) {}
        void paint (juce::Graphics& g) override
        {
            ++frames;
            PlaneComponent::paint (g);
        }
        int frames = 0;
    };
    Counter counter;
    Stage own (counter);
    static_cast<void> (own.picture());
    counter.frames = 0;
    for (std::size_t i = 0; i < 64; ++i)
        counter.SetSourcePosition (i, { 0.01f * static_cast<float> (i), 0, 0 }, true);
    static_cast<void> (own.picture());
    EXPECT_EQ (counter.frames, 1);
}

struct WheelRow
{
    int keys;
    bool apertureVisible;
    const char* told; // "" if the wheel zooms

    friend std::ostream& operator<< (std::ostream& out, const WheelRow& row)
    {
        return out << "keys " << row.keys << (row.apertureVisible ? " with apertures" : " without apertures");
    }
};

class PlaneWheel : public PlaneOnStage, public testing::WithParamInterface<WheelRow>
{};

TEST_P (PlaneWheel, TurnsWhatTheKeysSay)
{
    plane.SetApertureVisible (GetParam().apertureVisible);
    stage.click (Source (0));
    static_cast<void> (heard.Take());
    juce::MouseWheelDetails wheel{};
    wheel.deltaY = 0.5f;
    const auto source = juce::Desktop::getInstance().getMainMouseSource();
    const juce::MouseEvent event (source, {}, Keys (GetParam().keys), 0, 0, 0, 0, 0, &plane, &plane, {}, {}, {}, 1,
                                  false);
    plane.mouseWheelMove (event, wheel);
    const std::string told = GetParam().told;
    if (told.empty()) {
        EXPECT_THAT (heard.Take(), ElementsAre ("options"));
        EXPECT_NEAR (plane.GetSurface().viewTransform.zoom, std::exp2 (0.075f), 1e-5f);
    } else {
        EXPECT_THAT (heard.Take(), ElementsAre (told));
        EXPECT_FLOAT_EQ (plane.GetSurface().viewTransform.zoom, 1);
    }
}

INSTANTIATE_TEST_SUITE_P (
    Keys, PlaneWheel,
    testing::Values (WheelRow{ 0, true, "" }, WheelRow{ Keys::ctrlModifier, true, "aperture 0 90.00" },
                     WheelRow{ Keys::altModifier, true, "yaw 0 10.00" },
                     WheelRow{ Keys::shiftModifier, true, "source 0 0.00 1.00 0.50" },
                     WheelRow{ Keys::ctrlModifier, false, "" },
                     WheelRow{ Keys::ctrlModifier | Keys::shiftModifier, false, "source 0 0.00 1.00 0.50" },
                     WheelRow{ Keys::ctrlModifier | Keys::altModifier, true, "" }));

TEST_F (PlaneOnStage, TheWheelTurnsTheSelectedListener)
{
    plane.SetListenerEditable (true);
    stage.click (At ({}));
    static_cast<void> (heard.Take());
    stage.wheel (At ({}), 0.5f, Keys::altModifier);
    EXPECT_THAT (heard.Take ("listeneryaw"), ElementsAre ("listeneryaw 10.00"));
}

/** Drawing and hit testing agree: in random scenes at any zoom, offset and view, the centre of every visible icon hits
    it or one drawn over it. */
TEST (PlaneHits, AgreeWithWhatIsDrawn)
{
    std::mt19937 random (7);
    const auto between = [&] (float low, float high) {
        return std::uniform_real_distribution<float> (low, high) (random);
    };
    for (int round = 0; round < 200; ++round) {
        PlaneComponent plane (8, 8, 300);
        plane.SetSpeakersEditable (true, false);
        plane.SetZoom (std::exp2 (between (-3, 6)), false);
        plane.SetXOffset (between (-200, 200));
        plane.SetYOffset (between (-200, 200));
        plane.SetZOffset (between (-200, 200));
        plane.SetTopView (between (0, 1) < 0.5f);
        plane.SetAllSourcesProportion (between (0.01f, 0.1f));
        for (std::size_t i = 0; i < 8; ++i) {
            plane.SetSourcePosition (i, { between (-3, 3), between (-3, 3), between (-3, 3) }, false);
            plane.SetSourceVisible (i, between (0, 1) < 0.7f, false);
        }
        const auto& scene = plane.GetScene();
        const auto& surface = plane.GetSurface();
        for (std::size_t i = 0; i < 8; ++i) {
            const auto& source = scene.sources[i];
            const auto middle = lumo::Plane::OnScreen (surface.viewTransform, source.position);
            const int hit = lumo::Plane::SourceUnder (middle, surface, scene);
            if (source.visible)
                EXPECT_GE (hit, static_cast<int> (i)) << "round " << round;
            else
                EXPECT_NE (hit, static_cast<int> (i)) << "round " << round;
            const auto size = static_cast<float> (surface.viewTransform.PixelSize (source.Proportion()));
            EXPECT_NE (lumo::Plane::SourceUnder (middle.translated (size + 0.5f, 0), surface, scene),
                       static_cast<int> (i))
                << "the edge does not count";
        }
        plane.SetSpeakersVisible (false);
        EXPECT_EQ (lumo::Plane::SpeakerUnder (scene.speakers[0].screenPosition, surface, scene), -1);
    }
}
