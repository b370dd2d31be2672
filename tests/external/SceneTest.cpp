#include "ControlTest.h"
#include "EveryMessage.h"

#include "external/ViewerAttributes.h"
#include "external/ViewerMessages.h"
#include "gui/plane/PlaneComponent.h"
#include "max/AttributeList.h"
#include "support/bench/HookClass.h"

#include <cmath>
#include <map>
#include <set>

CONTROL_TESTS (Scene);

namespace
{

using Plane = lumo::PlaneComponent;

constexpr double pi = 3.14159265358979;

struct Reach
{
    const char* message; // an attribute and a non-default value
    double expected;
    double (*held) (const Plane& plane);
};

#define HELD(what) [] (const Plane& plane) -> double { return plane.what; }

const Reach reaches[] = {
    { "zoom 2", 2, HELD (GetSurface().viewTransform.zoom) },
    { "xoffset 3", 3, HELD (GetSurface().viewTransform.xOffset) },
    { "yoffset 4", 4, HELD (GetSurface().viewTransform.yOffset) },
    { "zoffset 5", 5, HELD (GetSurface().viewTransform.zOffset) },
    { "viewpoint front", 0, HELD (GetSurface().viewTransform.topView) },
    { "sourceproportion 0.25", 0.25, HELD (GetScene().sources[1].Proportion()) },
    { "speakersproportion 0.5", 0.5, HELD (GetScene().speakers[2].proportion) },
    { "listenerproportion 0.75", 0.75, HELD (GetListener().proportion) },
    { "globalproportion 0.125", 0.125, HELD (GetSurface().viewTransform.markerProportion) },
    { "backgroundimagescale 5", 0.05, HELD (GetSurface().backgroundImage.scale) },
    { "backgroundimagexoffset 6", 6, HELD (GetSurface().backgroundImage.xOffset) },
    { "backgroundimageyoffset 7", 7, HELD (GetSurface().backgroundImage.yOffset) },
    { "backgroundimageangle 90", pi / 2, HELD (GetSurface().backgroundImage.angle) },
    { "backgroundimageopacity 0.5", 0.5, HELD (GetSurface().backgroundImage.opacity) },
    { "backgroundimagequality high", 2, HELD (GetSurface().backgroundImage.quality) },
    { "showbackgroundimage 0", 0, HELD (GetSurface().backgroundImage.visible) },
    { "gridmode square", 2, HELD (GetSurface().grid.mode) },
    { "gridspacing 2", 2, HELD (GetSurface().grid.spacing) },
    { "gridlines 7", 7, HELD (GetSurface().grid.numLines) },
    { "numangulardivisions 12", 12, HELD (GetSurface().grid.numAngularDivisions) },
    { "dashedgrid 1", 1, HELD (GetSurface().grid.dashed) },
    { "showangulardivisions 0", 0, HELD (GetSurface().grid.angularDivisionsVisible) },
    { "gridcolor 0.2 0.4 0.6 0.8", 0xCC336699, HELD (GetSurface().grid.colour.getARGB()) },
    { "backgroundcolor 0.2 0.4 0.6 0.8", 0xCC336699, HELD (GetSurface().background.colour.getARGB()) },
    { "aperturecolor 0.2 0.4 0.6 0.8", 0xCC336699, HELD (GetScene().sources[1].apertureColour.getARGB()) },
    { "speaker 3 color 0.2 0.4 0.6 0.8", 0xCC336699, HELD (GetScene().speakers[2].colour.getARGB()) },
    { "sourcecolor 1 1 1 1 0.2 0.4 0.6 0.8", 0xCC336699, HELD (GetScene().sources[1].Colour().getARGB()) },
    { "listeneryaw 90", pi / 2, HELD (GetListener().yaw) },
    { "listenerpitch 45", pi / 4, HELD (GetListener().pitch) },
    { "listenerroll 30", pi / 6, HELD (GetListener().roll) },
    { "yaw 0 45", pi / 4, HELD (GetScene().sources[1].yaw) },
    { "aperture 80 45", pi / 4, HELD (GetScene().sources[1].aperture) },
    { "radius 1 3", 3, HELD (GetScene().sources[1].radius) },
    { "sourceslevels -60 -12", -12, HELD (GetScene().sources[1].level) },
    { "speakerslevels -60 -60 -9", -9, HELD (GetScene().speakers[2].level) },
    { "showsources 0", 0, HELD (GetScene().sources[1].visible) },
    { "showsourceslabel 0", 0, HELD (GetScene().sources[1].labelVisible) },
    { "sourceseditable 0", 0, HELD (GetScene().sources[1].Editable()) },
    { "showspeakerslabel 0", 0, HELD (GetScene().speakers[1].nameVisible) },
    { "speakerseditable 1", 1, HELD (GetScene().speakers[1].editable) },
    { "showspeakers 0", 0, HELD (GetSurface().options.speakersVisible) },
    { "listenereditable 1", 1, HELD (GetListener().editable) },
    { "showlistener 0", 0, HELD (GetListener().visible) },
    { "circularconstraint 1", 1, HELD (GetSurface().options.circularConstraint) },
    { "radiusconstraint 1", 1, HELD (GetSurface().options.radiusConstraint) },
    { "showradius 1", 1, HELD (GetSurface().options.radiusVisible) },
    { "showshoebox 1", 1, HELD (GetSurface().shoebox.visible) },
    { "showaperture 1", 1, HELD (GetSurface().options.apertureVisible) },
    { "showspeakershull 1", 1, HELD (GetSurface().options.hullVisible) },
    { "showspeakersradius 1", 1, HELD (GetSurface().options.speakersRadiusVisible) },
    { "showspeakersprojection 1", 1, HELD (GetSurface().options.speakersProjectionVisible) },
    { "showspeakerstriangulation 1", 1, HELD (GetSurface().options.triangulationVisible) },
    { "showanchors 1", 1, HELD (GetSurface().anchors.anchorsVisible) },
    { "showanchorslabel 1", 1, HELD (GetSurface().anchors.anchorsLabelVisible) },
    { "showareas 1", 1, HELD (GetSurface().options.areasVisible) },
    { "areasmonitoring 1", 1, HELD (GetSurface().options.areasMonitoring) },
    { "showlegend 0", 0, HELD (GetSurface().legend.visible) },
    { "showspeakerslevels 1", 1, HELD (GetSurface().options.speakersLevelsVisible) },
    { "showsourceslevels 1", 1, HELD (GetSurface().options.sourcesLevelsVisible) },
    { "zoomlock 1", 1, HELD (GetSurface().options.zoomLocked) },
    { "rightclicklock 1", 1, HELD (GetSurface().options.rightClickLocked) },
    { "showviewer 0", 0, HELD (GetSurface().viewerVisible) },
    { "showheadphones 1", 1, HELD (GetListener().headphonesVisible) },
};

#undef HELD

}

TEST_P (Scene, AnAreaTakesItsMessages)
{
    auto box = settled ("@numareas 2");
    for (const auto* message :
         { "areas 2 xyz 0 0 0 1 0 0 1 1 0", "areas 2 name 7", "areas 2 color 0.2 0.4 0.6 0.8", "areas 2 visible 0" })
        EXPECT_EQ (saying (box, message), Messages()) << message;
    const auto& areas = box.record<t_halcyra_control>()->plane->GetScene().areas;
    EXPECT_EQ (areas[1].colour.getARGB(), 0xCC336699);
    EXPECT_TRUE (areas[1].points.size() == 3 && areas[1].label == "7" && ! areas[1].visible);
    EXPECT_TRUE (areas[0].points.empty() && areas[0].visible);
}

TEST_P (Scene, HoldsWhatAnAttributeSaysAndElseWhatItHeld)
{
    auto box = settled ("@numsources 2 @numspeakers 3");
    const auto& plane = *box.record<t_halcyra_control>()->plane;
    const auto start = bench::stateOf (*box).value();
    for (const auto& reach : reaches) {
        std::vector<double> before;
        for (const auto& other : reaches)
            before.push_back (other.held (plane));
        box.send (reach.message);
        settle();
        for (std::size_t i = 0; i < std::size (reaches); ++i) {
            const bool isIt = &reaches[i] == &reach;
            EXPECT_NEAR (reaches[i].held (plane), isIt ? reach.expected : before[i], 1e-6)
                << reaches[i].message << ", behind " << reach.message;
            EXPECT_FALSE (isIt && std::abs (before[i] - reach.expected) < 0.01) << reach.message << " is the default";
        }
        bench::setState (*box, start);
        settle();
    }
}

namespace
{

/** What the hand may do on the plane, as the plane's own operation; or an item of its menu; or a message. */
struct Act
{
    const char* attribute;
    const char* value;
    void (*act) (Plane& plane);
    const char* prepare = "version";
    const char* message = nullptr;
};

const Act acts[] = {
    { "sourcespositions", "-4.371139e-08 1. 0. 1. 2. 3.",
      [] (Plane& p) {
          p.SetSourcePosition (1, { 1, 2, 3 }, true);
      } },
    { "speakerspositions", "1. 0. 0. 0. 2. 0. 0. 0. 3.",
      [] (Plane& p) {
          p.SetSpeakersPositions ({ { 1, 0, 0 }, { 0, 2, 0 }, { 0, 0, 3 } }, true);
      } },
    { "listenerposition", "1. 2. 3.",
      [] (Plane& p) {
          p.SetListenerPosition ({ 1, 2, 3 }, true);
      } },
    { "listeneryaw", "30.", [] (Plane& p) { p.SetListenerYaw (390, true); } },
    { "listenerpitch", "40.", [] (Plane& p) { p.SetListenerPitch (40, true); } },
    { "listenerroll", "50.", [] (Plane& p) { p.SetListenerRoll (50, true); } },
    { "listenerroll", "-30.", [] (Plane& p) { p.SetListenerOrientation (10, 20, -30, true); } },
    { "yaw", "0. 40.", [] (Plane& p) { p.SetSourceYaw (1, 40, true); } },
    { "aperture", "80. 50.", [] (Plane& p) { p.SetSourceAperture (1, 50, true); } },
    { "zoom", "2.", [] (Plane& p) { p.SetZoom (2, true); } },
    { "xoffset", "3.", [] (Plane& p) { p.ShiftView (3, 4); } },
    { "yoffset", "4.", [] (Plane& p) { p.ShiftView (3, 4); } },
    { "viewpoint", "front", [] (Plane& p) { p.MenuItemChosen (8); } },
    { "zoffset", "4.", [] (Plane& p) { p.ShiftView (3, 4); }, "viewpoint front" },
    { "yaw", "0. 45.",
      [] (Plane& p) {
          p.SetSourcePosition (1, { 1, -1, 0 }, true);
      },
      "source 2 orientationmode translation" },
    { "gridmode", "cartesian", [] (Plane& p) { p.SetGridMode (lumo::Plane::Grid::square); } },
    { "sourceseditable", "0", [] (Plane& p) { p.MenuItemChosen (2); } },
    { "speakerseditable", "1", [] (Plane& p) { p.MenuItemChosen (1); } },
    { "listenereditable", "1", [] (Plane& p) { p.MenuItemChosen (3); } },
    { "showspeakers", "0", [] (Plane& p) { p.MenuItemChosen (4); } },
    { "showaperture", "1", [] (Plane& p) { p.MenuItemChosen (10); } },
    { "showlistener", "0", [] (Plane& p) { p.MenuItemChosen (13); } },
    { "circularconstraint", "1", [] (Plane& p) { p.MenuItemChosen (6); } },
    { "showheadphones", "1", [] (Plane& p) { p.MenuItemChosen (9); } },
    { "showbackgroundimage", "0", [] (Plane& p) { p.MenuItemChosen (11); } },
    { "showradius", "1", [] (Plane& p) { p.MenuItemChosen (12); } },
    { "showshoebox", "1", [] (Plane& p) { p.MenuItemChosen (14); } },
    { "showspeakershull", "1", [] (Plane& p) { p.MenuItemChosen (15); } },
    { "showangulardivisions", "0", [] (Plane& p) { p.MenuItemChosen (16); } },
    { "showspeakersradius", "1", [] (Plane& p) { p.MenuItemChosen (17); } },
    { "showspeakersprojection", "1", [] (Plane& p) { p.MenuItemChosen (18); } },
    { "sourcespositions", "-4.371139e-08 1. 0. 1. 2. 3.", nullptr, "version", "source 2 xyz 1 2 3" },
    { "yaw", "0. 45.", nullptr, "source 2 orientationmode translation", "source 2 xyz 1 -1 0" },
    { "yaw", "0. 90.", nullptr, "source 2 xyz 1 0 0", "source 2 lookat 2 0 0" },
    { "speakerspositions", "1. 0. 0. 0. 2. 0. 0. 0. 3.", nullptr, "version", "speakers xyz 1 0 0 0 2 0 0 0 3" },
    { "direct", "1. 2. 3. 4. 300. 3000.", nullptr, "version", "direct 1 2 3 4 300 3000" },
    { "gain", "3.", nullptr, "version", "gain 3" },
    { "infinite", "1", nullptr, "version", "reverb infinite 1" },
};

}

TEST_P (Scene, AttributesHoldWhatWasDoneBeforeAnythingIsTold)
{
    patch.load (hook_main);
    auto hook = make ("test.hook");
    for (const auto& act : acts) {
        SCOPED_TRACE (act.attribute);
        auto box = settled ("@numsources 2 @numspeakers 3");
        box.send (act.prepare);
        settle();
        transcript();
        ASSERT_TRUE (patch.connect (*box, 0, *hook));
        object_attach_byptr (box->object, hook->object);
        const auto before = box.attribute (act.attribute);
        EXPECT_NE (before, act.value);
        Messages heard;
        onHook() = [&] { heard.push_back (box.attribute (act.attribute)); };
        if (act.message == nullptr)
            act.act (*box.record<t_halcyra_control>()->plane);
        else
            box.send (act.message);
        settle();
        onHook() = nullptr;
        EXPECT_EQ (box.attribute (act.attribute), act.value);
        EXPECT_THAT (heard, testing::Each (act.value));
        EXPECT_THAT (box.notifications(), testing::Contains ("attr_modified"));
        EXPECT_FALSE (heard.empty());
        box.free();
    }
}

/** A queued update reaches the plane later; what it asks for is readable at once. */
TEST_P (Scene, AWaitingUpdateIsReadAtOnce)
{
    const struct
    {
        const char *message, *attribute;
    } rows[] = { { "source 1 xyz 1 2 3", "sourcespositions" },   { "listener xyz 1 2 3", "listenerposition" },
                 { "speaker 1 xyz 1 2 3", "speakerspositions" }, { "listener yaw 200", "listeneryaw" },
                 { "listener pitch 40", "listenerpitch" },       { "listener roll 50", "listenerroll" },
                 { "listener rpy 10 20 30", "listeneryaw" },     { "listener rpy 10 20 30", "listenerpitch" },
                 { "listener rpy 10 20 30", "listenerroll" } };
    for (const auto& row : rows)
        for (const auto* defer : { "defer 0", "defer 1" }) {
            auto box = settled ("@numsources 2 @numspeakers 2");
            box.send (defer);
            settle();
            const auto before = box.attribute (row.attribute);
            box.send (row.message);
            const auto atOnce = box.attribute (row.attribute);
            EXPECT_NE (atOnce, before) << row.message;
            settle();
            EXPECT_EQ (box.attribute (row.attribute), atOnce) << row.message;
            box.free();
        }
}

/** The host's word `false` as selector: an update that the outlet does not send. */
TEST_P (Scene, AnUpdateCalledFalseIsNotSent)
{
    using Entry = void (*) (void*, t_symbol*, t_clong, t_atom*);
    const struct
    {
        const char* message;
        Entry entry;
        const char* attribute;
    } rows[] = { { "source 1 xyz 1 2 3", halcyra::changeSource, "sourcespositions" },
                 { "speaker 1 xyz 1 2 3", halcyra::changeSpeaker, "speakerspositions" },
                 { "speakers xyz 1 2 3 4 5 6", halcyra::changeSpeakers, "speakerspositions" } };
    for (const auto& row : rows)
        for (const auto* defer : { "defer 0", "defer 1" }) {
            Messages held;
            for (const auto* selector : { "", "false" }) {
                auto box = settled ("@numsources 2 @numspeakers 2");
                box.send (defer);
                settle();
                auto message = bench::messageOf (bench::wordsOf (row.message));
                auto* name = *selector == 0 ? message.selector : gensym (selector);
                row.entry (box->object, name, static_cast<t_clong> (message.atoms.size()), message.atoms.data());
                settle();
                EXPECT_EQ (box.leftOutlet().empty(), *selector != 0) << row.message << ' ' << selector;
                held.push_back (box.attribute (row.attribute));
                box.free();
            }
            EXPECT_EQ (held.front(), held.back()) << row.message;
        }
}

/** Beyond what every message tries: each angle and coordinate alone, and what several attributes follow. */
constexpr const char* moreMessages[] = {
    "listener rpy 10 20 30",
    "listener x++ 1",
    "listener aed 30 20 2",
    "source 2 z++ 1",
    "source 2 aperture 40",
    "source 2 radius 3",
    "source 2 orientationmode follow",
    "source 1 orientationmode listenerconstraint",
    "source 1 orientationmode translation",
    "speaker 2 y++ 1",
    "speaker 2 color 1 0 0 1",
    "rotate 1 0 30 20",
    "roomsize 500.",
    "early end 20",
    "cluster start 30",
    "reverb fl 300",
    "reverb airfreq 900",
    "room freqs 300 3000",
    "zoom 2",
    "zoomlock 1",
    "viewpoint front",
    "xoffset 3",
    "showheadphones 1",
    "showspeakers 0",
    "sourcevisible 1 0",
    "source 1 visible 0",
    "source 1 editable 0",
    "speaker 1 editable 1",
    "windowsize 500 400",
    "windowmoveable 0",
    "infinite 1",
    "air 0",
    "speakereditable 1",
};

/** Clients such as an attrui show the present value only if each change notifies them, and none redraws in vain. */
TEST_P (Scene, TheAttributesThatChangeAreTouched)
{
    patch.load (hook_main);
    auto hook = make ("test.hook");
    std::vector<const char*> messages (std::begin (everyMessage), std::end (everyMessage));
    messages.insert (messages.end(), std::begin (moreMessages), std::end (moreMessages));
    int changes = 0;
    for (const auto* message : messages) {
        auto box = settled ("@numsources 2 @numspeakers 3");
        for (const auto* prepare : { "source 2 orientationmode translation", "listener xyz 1 0 0", "store a",
                                     "source 1 xyz 3 2 1", "store b" })
            box.send (prepare);
        settle();
        object_attach_byptr (box->object, hook->object);
        std::set<const void*> touched;
        onTouch() = [&] (const void* attribute) { touched.insert (attribute); };
        std::map<std::string, std::string> before;
        for (auto* name : orvanemax::visibleAttributes (box->object))
            before[name->s_name] = box.attribute (name->s_name);
        box.send (message);
        settle();
        onTouch() = nullptr;
        const std::string text (message);
        const auto selector = text.substr (0, text.find (' '));
        for (const auto& [name, value] : before) {
            const bool isTouched = touched.count (object_attr_get (box->object, gensym (name.c_str()))) != 0;
            const bool isChanged = box.attribute (name) != value;
            changes += isChanged ? 1 : 0;
            if (name != selector) { // the host notifies of what a patcher sets
                EXPECT_EQ (isTouched, isChanged) << message << ": " << name << " was " << value;
            }
        }
        box.free();
    }
    EXPECT_GT (changes, 60);
}

TEST_P (Scene, WhatIsRefusedNotifiesOfNothing)
{
    auto box = settled ("@numsources 2 @numspeakers 3");
    for (const auto* message :
         { "windowmoveable foo", "windowsize 5", "gridmode foo", "viewpoint foo", "source 9 xyz 0 0 0",
           "source 1 foo 1", "source 1 orientationmode foo", "speakers xyz 1 2", "listener xyz 1 2", "rotate 1 2",
           "direct freqs 300", "recall missing", "orientationmode foo foo", "numsources 7", "early foo 3",
           "area 9 name a" }) {
        box.notifications();
        box.send (message);
        settle();
        EXPECT_THAT (box.notifications(), testing::Not (testing::Contains ("modified"))) << message;
    }
}

TEST_P (Scene, AGetterFillsNoMoreThanTheMemoryThatItIsGiven)
{
    auto box = settled ("@numsources 4 @yaw 1 2 3 4");
    auto* attribute = object_attr_get ((*box).object, gensym ("yaw"));
    for (const t_clong room : { 1, 3, 4, 6 }) {
        bench::Atoms given (8);
        for (auto& atom : given)
            atom_setlong (&atom, -7);
        auto count = room;
        auto* atoms = given.data();
        const auto* const memory = atoms;
        EXPECT_EQ (halcyra_control_per_source_get (box.record<t_halcyra_control>(), attribute, &count, &atoms),
                   MAX_ERR_NONE);
        EXPECT_EQ (atoms, memory);
        EXPECT_EQ (count, std::min (room, 4));
        EXPECT_EQ (atom_getfloat (&given[static_cast<std::size_t> (count) - 1]), count);
        EXPECT_EQ (atom_getlong (&given[static_cast<std::size_t> (count)]), -7);
    }
}
