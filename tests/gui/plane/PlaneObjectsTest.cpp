#include "PlaneRecorder.h"
#include "gui/scene/Positions.h"

#include "gui/plane/ScenePoses.h"

#include <gmock/gmock.h>

using lumo::PlaneComponent;
using qel::Point3;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

constexpr float tolerance = 1e-4f;

void ExpectNear (const Point3& p, const Point3& wanted)
{
    EXPECT_NEAR (p.x, wanted.x, tolerance);
    EXPECT_NEAR (p.y, wanted.y, tolerance);
    EXPECT_NEAR (p.z, wanted.z, tolerance);
}

}

TEST (PlaneSources, StandInARingFromTheFrontClockwise)
{
    PlaneComponent plane (4, 0, 300);
    ExpectNear (plane.GetSourcePosition (0), { 0, 1, 0 });
    ExpectNear (plane.GetSourcePosition (1), { 1, 0, 0 });
    EXPECT_EQ (plane.GetScene().sources[3].label.Text(), "4");
}

TEST (PlaneSources, AreAtMost256AndNewOnesStandAtTheOrigin)
{
    PlaneComponent plane (2, 2, 300);
    plane.SetNumSources (300, true);
    EXPECT_EQ (plane.GetNumSources(), 256u);
    ExpectNear (plane.GetSourcePosition (200), {});
    plane.SetNumSpeakers (300, true);
    EXPECT_EQ (plane.GetNumSpeakers(), 256u);
    plane.SetNumSources (0, true);
    EXPECT_TRUE (plane.GetSurface().options.sourcesEditable) << "every one of none is editable";
}

TEST (PlaneSources, AMoveIsToldAfterTheYaw)
{
    PlaneComponent plane (2, 0, 300);
    plane.SetSourceYawMode (1, "translation");
    PlaneRecorder heard (plane);
    plane.SetSourcePosition (1, { 1, 0, 0 }, true);
    EXPECT_THAT (heard.Take(), ElementsAre ("yaw 1 90.00", "source 1 1.00 0.00 0.00"));
    plane.SetSourcePosition (0, { 0, 2, 0 }, true);
    EXPECT_THAT (heard.Take(), ElementsAre ("source 0 0.00 2.00 0.00")) << "this mode reports no yaw";
    plane.SetSourcePosition (0, { 0, 3, 0 }, false);
    EXPECT_THAT (heard.Take(), IsEmpty());
}

TEST (PlaneSources, TheRadiusConstraintKeepsTheDistance)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetRadiusConstraint (true);
    PlaneRecorder heard (plane);
    plane.SetSourcePosition (0, { 7, 0, 0 }, true);
    ExpectNear (plane.GetSourcePosition (0), { 1, 0, 0 });
    plane.SetSourceAzimuth (0, 180, true);
    ExpectNear (plane.GetSourcePosition (0), { 0, -1, 0 });
    static_cast<void> (heard.Take());
    for (const float metres : { 5.0f, 0.0f, -2.0f }) {
        plane.SetSourceDistance (0, metres, true);
        ExpectNear (plane.GetSourcePosition (0), { 0, -1, 0 });
        EXPECT_THAT (heard.Take(), ElementsAre ("source 0 0.00 -1.00 0.00")) << "told all the same";
    }
}

TEST (PlaneSources, SphericalSettersChangeOneCoordinate)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourceDistance (0, 2, false);
    ExpectNear (plane.GetSourcePosition (0), { 0, 2, 0 });
    plane.SetSourceElevation (0, 90, false);
    ExpectNear (plane.GetSourcePosition (0), { 0, 0, 2 });
}

TEST (PlaneSources, TurnAboutTheListener)
{
    PlaneComponent plane (2, 0, 300);
    plane.SetListenerPosition ({ 1, 1, 0 }, false);
    plane.SetSourcePosition (0, { 2, 1, 0.5f }, false);
    plane.RotateSource (0, 90, 0, 0, true);
    ExpectNear (plane.GetSourcePosition (0), { 1, 2, 0.5f });
}

struct YawRow
{
    const char* mode;
    float wanted, stored;

    friend std::ostream& operator<< (std::ostream& out, const YawRow& row)
    {
        return out << row.mode << " " << row.wanted;
    }
};

class PlaneYaw : public testing::TestWithParam<YawRow>
{};

TEST_P (PlaneYaw, IsTakenAsTheModeTakesItAndToldAsItStands)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourcePosition (0, { 1, 1, 0 }, false);
    plane.SetSourceYaw (0, 30, false);
    plane.SetSourceYawMode (0, GetParam().mode);
    PlaneRecorder heard (plane);
    plane.SetSourceYaw (0, GetParam().wanted, true);
    EXPECT_NEAR (plane.GetScene().sources[0].YawDegrees(), GetParam().stored, 0.01f);
    EXPECT_THAT (heard.Take(), ElementsAre ("yaw 0 " + juce::String (GetParam().stored, 2).toStdString()));
}

INSTANTIATE_TEST_SUITE_P (Modes, PlaneYaw,
                          testing::Values (YawRow{ "yawconstraint", 200, -160 }, YawRow{ "yawconstraint", -180, -180 },
                                           YawRow{ "translation", 75, 75 }, YawRow{ "follow", 75, 30 },
                                           YawRow{ "listenerconstraint", 75, 30 }, YawRow{ "nonsense", 75, 75 }));

TEST (PlaneYawRules, TranslationTurnsASourceAsFarAsItGoesAround)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourcePosition (0, { 1, 0, 0 }, false);
    plane.SetSourceYawMode (0, "translation");
    plane.SetSourceYaw (0, 30, false);
    const std::pair<Point3, float> steps[] = { { { 0, 1, 0 }, 120 }, { { -2, 0, 0 }, -150 }, { { 0, -1, 0 }, -60 } };
    for (const auto& [place, yaw] : steps) {
        plane.SetSourcePosition (0, place, true);
        EXPECT_NEAR (plane.GetScene().sources[0].YawDegrees(), yaw, 0.01f);
    }
}

TEST (PlaneYawRules, ListenerConstraintReportsFromZeroTo360)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourcePosition (0, { 1, 0, 0 }, false);
    PlaneRecorder heard (plane);
    plane.SetSourceYawMode (0, "listenerconstraint");
    EXPECT_THAT (heard.Take(), ElementsAre ("yaw 0 90.00"));
    plane.SetSourcePosition (0, { 0, -1, 0 }, false);
    EXPECT_THAT (heard.Take(), ElementsAre ("yaw 0 180.00"));
    plane.SetSourceYawMode (0, "listenerconstraint");
    EXPECT_THAT (heard.Take(), IsEmpty()) << "the same mode again does nothing";
}

struct LookRow
{
    Point3 source, target;
    float yaw;

    friend std::ostream& operator<< (std::ostream& out, const LookRow& row)
    {
        return out << "from " << row.source.x << " " << row.source.y << " to " << row.target.x << " " << row.target.y;
    }
};

class PlaneLookAt : public testing::TestWithParam<LookRow>
{};

TEST_P (PlaneLookAt, TurnsTheSourceTowardsTheTarget)
{
    const auto yaw = lumo::Plane::Orientation::YawLookingAt (GetParam().source, GetParam().target);
    ASSERT_TRUE (yaw);
    EXPECT_NEAR (lumo::Plane::Orientation::WrapDegrees (*yaw), GetParam().yaw, 0.05f);
}

// Worked out by hand from the triangle of source, target and origin.
INSTANTIATE_TEST_SUITE_P (Rows, PlaneLookAt,
                          testing::Values (LookRow{ { 1, 0, 0 }, { 0, 1, 0 }, -135 },
                                           LookRow{ { 0, 1, 0 }, { 1, 0, 0 }, -45 },
                                           LookRow{ { -0.5f, -1, 0 }, { 0.5f, -1, 0 }, 63.435f },
                                           LookRow{ { -1, 0.5f, 0 }, { 1, -1, 0 }, 10.305f },
                                           LookRow{ { 1, 0.5f, 0 }, { -0.2f, -1, 0 }, -24.775f },
                                           LookRow{ { -0.2f, -1, 0 }, { 1, 1, 0 }, 19.654f },
                                           LookRow{ { 1, -1, 0 }, { -1, 0.5f, 0 }, -8.130f }));

TEST (PlaneLookAtRules, ACaseThatNoRuleCoversIsToldAndLooksAhead)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourcePosition (0, { 0.5f, 1, 0 }, false);
    plane.SetSourceYaw (0, 33, false);
    testing::internal::CaptureStderr();
    plane.SetSourceLookAt (0, { -0.2f, -1, 0 }, false);
    EXPECT_EQ (testing::internal::GetCapturedStderr(), "PlaneComponent::SetSourceLookAt unexpected case\n");
    EXPECT_EQ (plane.GetScene().sources[0].YawDegrees(), 0);
}

TEST (PlaneLookAtRules, ATargetOnTheOriginOrOnTheSourceChangesNothing)
{
    PlaneComponent plane (1, 0, 300);
    plane.SetSourceYaw (0, 33, false);
    PlaneRecorder heard (plane);
    plane.SetSourceLookAt (0, {}, true);
    plane.SetSourceLookAt (0, plane.GetSourcePosition (0), true);
    EXPECT_THAT (heard.Take(), IsEmpty());
    EXPECT_NEAR (plane.GetScene().sources[0].YawDegrees(), 33, 0.01f);
}

TEST (PlaneSources, OpenBetween10And180Degrees)
{
    PlaneComponent plane (1, 0, 300);
    for (const auto& [wish, taken] : { std::pair (3.0f, 10.0f), { 10, 10 }, { 90, 90 }, { 180, 180 }, { 270, 180 } }) {
        plane.SetSourceAperture (0, wish, true);
        EXPECT_NEAR (plane.GetScene().sources[0].ApertureDegrees(), taken, tolerance) << wish;
    }
}

TEST (PlaneLevels, AreClampedAndDoNotTell)
{
    PlaneComponent plane (2, 1, 300);
    PlaneRecorder heard (plane);
    plane.SetSourcesLevels ({ 10.0f, -100.0f, 3.0f });
    plane.SetSpeakerLevel (0, -6);
    EXPECT_FLOAT_EQ (plane.GetScene().sources[0].level, 6);
    EXPECT_FLOAT_EQ (plane.GetScene().sources[1].level, -60);
    EXPECT_FLOAT_EQ (plane.GetScene().speakers[0].level, -6);
    EXPECT_THAT (heard.Take(), IsEmpty());
}

TEST (PlaneSpeakers, CannotBeEditedUntilThatIsAskedFor)
{
    PlaneComponent plane (1, 2, 300);
    EXPECT_FALSE (plane.GetSurface().options.speakersEditable);
    EXPECT_FALSE (plane.GetScene().speakers[1].editable);
    plane.SetSpeakerEditable (0, true, false);
    EXPECT_FALSE (plane.GetSurface().options.speakersEditable) << "one of two";
    plane.SetSpeakerEditable (1, true, false);
    EXPECT_TRUE (plane.GetSurface().options.speakersEditable);
}

TEST (PlaneSpeakers, ComeBackWhenTheHeadphonesGo)
{
    PlaneComponent plane (0, 2, 300);
    plane.SetSpeakersEditable (true, false);
    plane.SetSpeakersVisible (false);
    plane.SetHeadphonesVisible (true);
    EXPECT_FALSE (plane.GetSurface().options.speakersVisible);
    plane.SetSpeakersVisible (true);
    EXPECT_FALSE (plane.GetSurface().options.speakersVisible) << "refused while the headphones are on";
    EXPECT_FALSE (plane.GetScene().speakers[0].editable);
    plane.SetHeadphonesVisible (false);
    EXPECT_TRUE (plane.GetSurface().options.speakersVisible);
    EXPECT_TRUE (plane.GetScene().speakers[0].editable);
}

TEST (PlaneSpeakers, AreMovedTogetherAsFarAsTheyGo)
{
    PlaneComponent plane (0, 2, 300);
    PlaneRecorder heard (plane);
    plane.SetSpeakersPositions ({ { 1, 2, 3 }, { 4, 5, 6 }, { 7, 8, 9 } }, true);
    EXPECT_EQ (plane.GetSpeakerPosition (1), (Point3{ 4, 5, 6 }));
    plane.SetSpeakersRadiusVisible (true);
    EXPECT_NEAR (plane.GetScene().speakerGeometry.Radius(), std::sqrt (77.0f), tolerance);
    EXPECT_THAT (heard.Take(), ElementsAre ("speakers 2", "options"));
}

TEST (PlaneListenerHead, IsDeafWhileItIsNotEnabled)
{
    PlaneComponent plane (0, 0, 300);
    plane.SetListenerEnabled (false);
    plane.SetListenerPosition ({ 1, 1, 1 }, true);
    plane.SetListenerYaw (20, true);
    plane.SetListenerEditable (true);
    EXPECT_EQ (plane.GetListenerPosition(), Point3());
    EXPECT_FALSE (plane.GetListenerEditable());
    plane.SetListenerEnabled (true);
    PlaneRecorder heard (plane);
    plane.SetListenerYaw (270, true);
    plane.SetListenerOrientation (180, 0, -190, true);
    EXPECT_THAT (heard.Take(), ElementsAre ("listeneryaw -90.00", "orientation -180.00 0.00 170.00"));
}

TEST (PlaneAreas, ReportWhoStandsInThem)
{
    PlaneComponent plane (1, 1, 300);
    plane.SetNumAreas (2);
    plane.SetAreaPoints (0, { { -1, 0, 0 }, { 1, 0, 0 }, { 1, 2, 0 }, { -1, 2, 0 } });
    PlaneRecorder heard (plane);
    plane.SetAreasMonitoring (true);
    EXPECT_THAT (heard.Take(), ElementsAre ("options", "listenerareas 00", "speakerareas 0 10", "sourceareas 0 10"));
    plane.SetSourcePosition (0, { 3, 3, 0 }, true);
    EXPECT_THAT (heard.Take(), ElementsAre ("sourceareas 0 00", "source 0 3.00 3.00 0.00"));
    plane.ClearAllAreas();
    EXPECT_THAT (heard.Take(), SizeIs (2)) << "the source once for each area";
}

TEST (PlaneAreaMonitor, ReportsTheListenerTheSpeakersAndTheSourcesWhileItIsOn)
{
    lumo::Plane::Scene scene;
    scene.areas.resize (2);
    scene.areas[1].SetPoints ({ { -1, -1, 0 }, { 1, -1, 0 }, { 1, 1, 0 }, { -1, 1, 0 } }, {});
    for (const int number : { 1, 2 })
        scene.sources.push_back (lumo::Plane::Source (number));
    scene.sources[0].position = { 5, 0, 0 };
    scene.speakers.push_back (lumo::Plane::Speaker (1));
    lumo::Plane::Listener listener;
    bool on = false;
    std::vector<std::string> reported;
    const auto report = [&] (const std::string& who, const std::vector<bool>& holding) {
        reported.push_back (who + (holding[0] ? " 1" : " 0") + (holding[1] ? "1" : "0"));
    };
    const lumo::Plane::AreaMonitor monitor (
        scene, listener, on,
        { [&] (auto& holding) { report ("listener", holding); },
          [&] (auto index, auto& holding) { report ("speaker " + std::to_string (index), holding); },
          [&] (auto index, auto& holding) { report ("source " + std::to_string (index), holding); } });
    monitor.ReportAll();
    EXPECT_THAT (reported, IsEmpty());
    on = true;
    listener.position = { 0, 3, 0 };
    monitor.ReportAll();
    EXPECT_THAT (reported, ElementsAre ("listener 00", "speaker 0 01", "source 0 00", "source 1 01"));
}

TEST (PlaneSnapshots, MoveTheSourcesThatBothHaveAndNotify)
{
    PlaneComponent plane (2, 0, 300);
    auto& snapshots = plane.GetSnapshots();
    snapshots.store ("ring", lumo::Plane::PositionsOf (plane.GetScene().sources));
    snapshots.store ("far", { { 0, 3, 0 }, { 0, -1, 0 }, { 9, 9, 9 } });
    PlaneRecorder heard (plane);
    qel::Point3Array between;
    snapshots.interpolate (between, "ring", "far", 0.5f);
    plane.SetSourcesPositions (between, true);
    EXPECT_THAT (heard.Take(), ElementsAre ("source 0 0.00 2.00 0.00", "source 1 0.00 -1.00 0.00"));
    plane.SetSourcesPositions (snapshots.points ("far"), false);
    ExpectNear (plane.GetSourcePosition (0), { 0, 3, 0 });
    plane.SetSourcesPositions (snapshots.points ("no such"), true);
    EXPECT_THAT (heard.Take(), IsEmpty());
}

TEST (PlaneListeners, HearInTheOrderOfAddingAndMayLeaveDuringACall)
{
    struct Leaver : lumo::PlaneListener
    {
        explicit Leaver (PlaneComponent& p, std::string& s, char c) : plane (p), log (s), name (c) {}
        void SourceRadiusChanged (std::size_t, float) override
        {
            log += name;
            if (name == 'b')
                plane.RemoveListener (this);
        }
        PlaneComponent& plane;
        std::string& log;
        char name;
    };
    PlaneComponent plane (1, 0, 300);
    std::string log;
    Leaver a (plane, log, 'a'), b (plane, log, 'b'), c (plane, log, 'c');
    for (auto* listener : { &a, &b, &b, &c })
        plane.AddListener (listener);
    plane.AddListener (nullptr);
    plane.SetSourceRadius (0, 2, true);
    plane.SetSourceRadius (0, 3, true);
    EXPECT_EQ (log, "abcac");
}

TEST (PlanePoses, ComeBackWholeAndAreTold)
{
    PlaneComponent plane (2, 2, 300);
    lumo::poses::Poses wish, now;
    lumo::poses::read (plane, wish);
    for (std::size_t i = 0; i < wish.size(); ++i)
        wish[i] = 0.3f + 0.01f * static_cast<float> (i); // no two numbers are alike
    PlaneRecorder heard (plane);
    lumo::poses::restore (plane, wish);
    lumo::poses::read (plane, now);
    EXPECT_EQ (now, wish);
    EXPECT_THAT (heard.Take ("orientation"), ElementsAre ("orientation 29.22 29.79 30.37")); // 0.51 to 0.53 radians
}

TEST (PlaneSpeakers, SelectedOnesStayWhenTheyMayNoLongerBeEdited)
{
    PlaneComponent plane (1, 2, 300);
    for (const bool circular : { false, true }) {
        plane.SetCircularConstraint (circular);
        plane.SetSpeakersEditable (true, true);
        plane.SelectSpeakerAlone (1);
        const auto before = plane.GetSpeakerPosition (1);
        plane.SetSpeakersEditable (false, true);
        plane.MoveSelection ({ 1, 1, 0 });
        ExpectNear (plane.GetSpeakerPosition (1), before);
    }
}
