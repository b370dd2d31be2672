#include "ControlTest.h"

#include <limits>

CONTROL_TESTS (MessagesIn);

namespace
{

struct Exchange
{
    const char* sent;
    Messages heard;
    Messages said = {};
};

}

TEST_P (MessagesIn, AreAppliedAndEchoed)
{
    const Exchange exchanges[] = {
        { "gain 3", { "reverb gain 3." } },
        { "gain 3", {} }, // nothing changed
        { "reverb gain 4", { "reverb gain 4." } },
        { "gain foo", { "reverb gain 0." } },
        { "gain 99", { "reverb gain 30." } }, // the attribute's filter
        { "reverb air 0", { "reverb air 0" } },
        { "reverb air 0.5", {}, { "error invalid message : roomairabsorption 0.5 " } },
        { "infinite 1", { "reverb infinite 1" } },
        { "direct gains 0 -6 -6 -6", { "direct 0. -6. -6. -6. 250. 4000." } },
        { "room G0 99", { "room 30. 0. 0. 0. 250. 4000." } },
        { "early freqs 4000 250", { "early 0. 0. 0. 0. 4000. 250." } }, // the order is not forced
        { "cluster params 1 2 3 4 500 6000", { "cluster 1. 2. 3. 4. 500. 6000." } },
        { "cluster 1 2 3 4 500 7000 99", { "cluster 1. 2. 3. 4. 500. 7000." } },
        { "early width 40", { "early width 40." } },
        { "early foo 3", {}, { "error invalid message : early foo 3 " } },
        { "direct", {}, { "error invalid message : direct " } },
        { "direct gains 0 0 0", {}, { "error invalid message : direct gains 0 0 0 " } },
        { "direct gain 0 0 0 0", {}, { "error invalid message : direct gain 0 0 0 0 " } },
        { "cluster start foo", {}, { "error invalid message : cluster start foo " } },
        { "reverb foo 1", {}, { "error invalid message : reverb foo 1 " } },
        { "reverb", {}, { "error invalid message : reverb " } },
        { "roomsize 10", {}, { "error invalid message : roomsize 10 " } },
        { "tr0 1 2", {}, { "error invalid message : tr0 1. 2. " } },
    };
    auto box = settled();
    for (const auto& exchange : exchanges) {
        box.send (exchange.sent);
        settle();
        EXPECT_EQ (box.leftOutlet(), exchange.heard) << exchange.sent;
        EXPECT_EQ (box.console(), exchange.said) << exchange.sent;
    }
}

TEST_P (MessagesIn, SetTheWindowsOptionsFromWhateverReadsAsANumber)
{
    const char* rows[][3] = {
        { "windowtopleft 7 foo", "windowtopleft", "7. 0." },   { "windowtopleft foo 8 9", "windowtopleft", "0. 8." },
        { "windowtopleft", "windowtopleft", "0. 8." },         { "windowtopleft 5", "windowtopleft", "5. 0." },
        { "windowmoveable 0 foo", "windowmoveable", "0" },     { "windowmoveable foo", "windowmoveable", "0" },
        { "windowmoveable 7", "windowmoveable", "1" },         { "windowtitle 3", "windowtitle", "Halcyra" },
        { "windowtitle \"a b\" c", "windowtitle", "\"a b\"" },
    };
    auto box = settled();
    for (const auto& [message, attribute, value] : rows) {
        EXPECT_EQ (saying (box, message), Messages()) << message;
        EXPECT_EQ (box.attribute (attribute), value) << message;
    }
}

TEST_P (MessagesIn, AWindowThatIsNotMoveableWarnsOfEachMove)
{
    auto box = settled();
    for (const auto* message : { "windowtopleft 5 6", "windowmoveable 0", "windowtopleft 5 6" })
        EXPECT_EQ (saying (box, message), Messages()) << message;
    for (const auto* message : { "windowtopleft 5 7", "windowtopleft 6 6", "windowtopleft 7 8" })
        EXPECT_EQ (saying (box, message), Messages{ "warn this window is not moveable" }) << message;
}

TEST_P (MessagesIn, LinearGainsHaveAFloor)
{
    auto box = settled();
    box.send ("room g0 0");
    settle();
    EXPECT_NEAR (box.record<t_halcyra_control>()->room[0], -69.2f, 0.05f);
}

TEST_P (MessagesIn, AFilterAttributeWithABadListSaysNothing)
{
    auto box = settled();
    const auto before = stateOf (box);
    bench::setAttribute (*box, "direct", bench::Atoms (3));
    settle();
    EXPECT_EQ (box.console(), Messages());
    EXPECT_EQ (stateOf (box), before);
}

TEST_P (MessagesIn, WorkForTheSceneToo)
{
    const Exchange exchanges[] = {
        { "source 1 xyz 0 2 0", { "source 1 aed 0. 0. 2." } },
        { "source 1 x++ 1", { "source 1 aed 26.565048 0. 2.236068" } },
        { "source 0 xyz 0 2 0", {}, { "error invalid source index 0" } },
        { "source 9 xyz 0 2 0", {}, { "error invalid source index 9" } },
        { "source 1 30 0 1", {}, { "error invalid message : source 1 30 0 1 " } },
        { "source 1 foo 1", {}, { "error invalid message : source 1 foo 1 " } },
        { "source 1 xyz 1 2",
          {},
          { "error not enough source coordinates. expected 3 coordinates",
            "error invalid message : source 1 xyz 1 2 " } },
        { "source 1 xyz 1 foo 2",
          {},
          { "error error reading source coordinates", "error invalid message : source 1 xyz 1 foo 2 " } },
        { "source 1 xyz 0 3 0 9",
          { "source 1 aed 0. 0. 3." },
          { "warn too many source coordinates. only 3 coordinates will be read" } },
        { "source 1 ambrel3 -90", { "source 1 aed 90. 0. 3." } },
        { "speaker 1 xyz 0 1 0", { "speakers aed 0. 0. 1. 30. 0. 1." } },
        { "speaker 3 xyz 0 1 0", {}, { "error invalid speaker index 3" } },
        { "speaker 2 visible 0.5", {} },
        { "speakers xyz 1 2 3",
          {},
          { "error not enough loudspeakers positions. expected 2 loudspeakers positions",
            "error invalid message : speakers xyz 1 2 3 " } },
        { "speakers 0 1 0 90 1 0",
          { "speakers aed 0. 0. 1. 90. 0. 1." },
          { "warn using default coordinate type (ade)" } },
        { "listener xyz 1 2 3 4", {}, { "warn too many listener positions. only 1 position will be read" } },
        { "listener foo 2", {}, { "error unknown coordinate type", "error invalid message : listener foo 2 " } },
        { "areas 1 clear", {}, { "error invalid areas index 1" } },
        { "numareas 1", {} },
        { "areas 1 xyz 0 0 0 1 0 0 1 1 0", {} },
        { "area 1 xyz 0 0", {}, { "error error reading positions", "error invalid message : areas xyz 0 0 " } },
        { "numanchors 1", {} },
        { "anchor 2 xyz 0 0 0", {}, { "error invalid anchor index 2" } },
        { "anchor 1 xyz 0 0 0 1 1 1", {}, { "error invalid message : areas xyz 0 0 0 1 1 1 " } },
        { "rotate 0 a", {}, { "error invalid rotate message" } },
        { "rotate -1 0 0 0", {}, { "error invalid source index -1" } },
        { "xsnapshot a b", {}, { "error invalid message : xsnapshot a b " } },
        { "store", {}, { "error invalid message : store " } },
        { "writesnapshot", {}, {} }, // cancelled
        { "writesnapshot none", {}, {} },
        { "writesnapshot 3", {}, { "error invalid message : writesnapshot 3 " } },
        { "writesnapshot nowhere.xml", {}, { "error no snapshot" } },
        { "format foo", {}, { "warn unknown coordinate type: foo. using default coordinate type (ade)" } },
        { "backgroundimage nothere.png", {}, { "error Couldnt locate file: nothere.png" } },
    };
    auto box = settled ("@numsources 2 @numspeakers 2");
    for (const auto& exchange : exchanges) {
        box.send (exchange.sent);
        settle();
        EXPECT_EQ (box.leftOutlet(), exchange.heard) << exchange.sent;
        EXPECT_EQ (box.console(), exchange.said) << exchange.sent;
    }
}

TEST_P (MessagesIn, TwoRelativeMovesInOneTurnAddUp)
{
    for (const auto* defer : { "defer 0", "defer 1" }) {
        auto box = settled();
        box.send (defer);
        box.send ("source 1 xyz 0 1 0");
        box.send ("source 1 x++ 1");
        box.send ("source 1 x++ 1");
        settle();
        EXPECT_EQ (box.leftOutlet().back().substr (0, 21), "source 1 aed 63.43495") << defer;
    }
}

TEST_P (MessagesIn, KeysOfASourceReachItsAttributes)
{
    auto box = settled ("@numsources 2");
    for (const auto* message :
         { "source 1 aperture 40", "source 2 yaw 30", "source 1 radius 2", "source 1 name 3.5", "source 2 name bob",
           "source 1 color 1 0 0.5 1", "source 2 orientationmode follow", "source 1 visible 0",
           "source 1 showaperture 1", "source 1 showcoordinates 0", "source 1 lookat 0 1 0" })
        EXPECT_EQ (saying (box, message), Messages()) << message;
    EXPECT_EQ (box.attribute ("aperture"), "40. 80.");
    EXPECT_EQ (box.attribute ("yaw"), "0. 30.");
    EXPECT_EQ (box.attribute ("radius"), "2. 1.");
    EXPECT_EQ (box.attribute ("name"), "\"3\" bob");
    EXPECT_EQ (box.attribute ("sourcecolor"), "1. 0. 0.5 1. 0.49019608 1. 0. 1.");
    EXPECT_EQ (box.attribute ("orientationmode"), "yawconstraint follow");
}

TEST_P (MessagesIn, ListsHoldAsManyValuesAsThereAreObjectsOfTheirKind)
{
    struct List
    {
        const char* attribute;
        bool isOfSpeakers;
        int valuesEach;
        std::string (*value) (int index);
    };
    const List lists[] = {
        { "sourcespositions", false, 3, [] (int i) { return std::to_string (i - 7) + "."; } },
        { "speakerspositions", true, 3, [] (int i) { return std::to_string (i - 7) + "."; } },
        { "sourcecolor", false, 4, [] (int i) { return bench::textOf (0.015625f * static_cast<float> (i)); } },
        { "yaw", false, 1, [] (int i) { return std::to_string (10 + i) + "."; } },
        { "aperture", false, 1, [] (int i) { return std::to_string (20 + i) + "."; } },
        { "radius", false, 1, [] (int i) { return std::to_string (2 + i) + "."; } },
        { "name", false, 1, [] (int i) { return "word" + std::to_string (i); } },
        { "orientationmode", false, 1, [] (int i) { return std::string (i % 2 == 0 ? "translation" : "follow"); } },
        { "sourceslevels", false, 1, [] (int i) { return std::to_string (i - 40) + "."; } },
        { "speakerslevels", true, 1, [] (int i) { return std::to_string (i - 40) + "."; } },
    };
    for (const int sources : { 2, 5 }) {
        const int speakers = 7 - sources;
        for (const auto& list : lists)
            for (const int tooMany : { -1, 0, 12 }) { // a list that is too short is ignored, but for positions
                auto box =
                    settled ("@numsources " + std::to_string (sources) + " @numspeakers " + std::to_string (speakers));
                const int count = list.valuesEach * (list.isOfSpeakers ? speakers : sources);
                std::string kept, more;
                for (int i = 0; i < count + tooMany; ++i)
                    (i < count ? kept : more).append (" ").append (list.value (i));
                const auto before = box.attribute (list.attribute);
                box.send (std::string (list.attribute).append (kept).append (more));
                settle();
                if (tooMany < 0)
                    kept = list.valuesEach == 3 ? kept.append (before, before.rfind (' '))
                                                : std::string (" ").append (before);
                EXPECT_EQ (std::string (" ").append (box.attribute (list.attribute)), kept)
                    << list.attribute << " of " << count << " + " << tooMany;
                box.free();
            }
    }
}

TEST_P (MessagesIn, AnIndexIsLimitedByTheCountOfItsKind)
{
    struct Index
    {
        const char* selector;
        int count;
        const char* rest;
    };
    const Index indices[] = {
        { "source", 2, "xyz 1 2 0" },  { "source", 2, "name solo" },      { "source", 2, "yaw 5" },
        { "speaker", 3, "xyz 1 2 0" }, { "loudspeaker", 3, "name solo" }, { "areas", 4, "xy 0 0 1 0 1 1" },
        { "area", 4, "name stage" },   { "anchor", 5, "xyz 0 0 1" },      { "anchor", 5, "name corner" },
    };
    auto box = settled ("@numsources 2 @numspeakers 3 @numareas 4 @numanchors 5");
    for (const auto& index : indices) {
        const auto message = [&] (int number) {
            return std::string (index.selector) + " " + std::to_string (number) + " " + index.rest;
        };
        EXPECT_EQ (saying (box, message (index.count)), Messages()) << message (index.count);
        EXPECT_EQ (saying (box, message (index.count + 1)).size(), 1u) << message (index.count + 1);
    }
}

TEST_P (MessagesIn, NumbersThatAreNoneNeverEnterTheState)
{
    const auto list = [] (std::initializer_list<double> values) {
        bench::Atoms atoms;
        for (const auto value : values)
            atom_setfloat (&atoms.emplace_back(), value);
        return atoms;
    };
    const auto withWord = [] (const char* word, bench::Atoms values, int index = -1) {
        bench::Atoms atoms (index < 0 ? 1 : 2);
        if (index >= 0)
            atom_setlong (&atoms[0], index);
        atom_setsym (&atoms.back(), gensym (word));
        atoms.insert (atoms.end(), values.begin(), values.end());
        return atoms;
    };
    auto box = settled ("@numsources 2 @numspeakers 2");
    const auto before = stateOf (box);
    for (const double bad : { std::nan (""), std::numeric_limits<double>::infinity(), 1e300 }) {
        box.send ("direct", withWord ("gains", list ({ bad, 0, 0, 0 })));
        box.send ("early", withWord ("start", list ({ bad })));
        box.send ("reverb", withWord ("gain", list ({ bad })));
        box.send ("roomsize", list ({ bad }));
        box.send ("source", withWord ("xyz", list ({ bad, 0, 0 }), 1));
        box.send ("source", withWord ("color", list ({ bad, 0, 0, 1 }), 1));
        box.send ("source", withWord ("yaw", list ({ bad }), 1));
        box.send ("speakers", withWord ("xyz", list ({ bad, 0, 0, 0, 0, 0 })));
        box.send ("listener", withWord ("yaw", list ({ bad })));
        box.send ("sourcespositions", list ({ bad, 0, 0 }));
        box.send ("xoffset", list ({ bad }));
        box.send ("windowtopleft", list ({ bad, bad }));
        box.send ("windowtopleft", list ({ 3, bad }));
        box.send ("backgroundcolor", list ({ 0.7, 0.7, 0.7, bad }));
        box.send ("sourcecolor", list ({ bad, 0, 0, 1, bad, 0, 0, 1 }));
        box.send ("speakerspositions", list ({ bad, 0, 0 }));
        box.send ("listeneryaw", list ({ bad }));
        box.send ("backgroundimageangle", list ({ bad }));
        box.send ("listenerposition", list ({ bad, bad, 0 }));
        box.send ("shoeboxcorners", list ({ bad, bad, 0, 0, 0, 0 }));
        settle();
    }
    // Infinity is clipped if there is a range; NaN fits no range.
    for (const auto* name : { "windowmoveable", "showfps", "zoom", "gain", "infinite", "numangulardivisions", "yaw",
                              "aperture", "radius", "sourceslevels", "speakerslevels", "numsources", "direct" })
        box.send (name, list ({ std::nan (""), std::nan (""), 0, 0, 0, 0 }));
    settle();
    EXPECT_EQ (stateOf (box), before);
    EXPECT_FALSE (box.console().empty());
    EXPECT_EQ (saying (box, "gain 1"), Messages()); // and a valid one still lands
    EXPECT_EQ (box.attribute ("gain"), "1.");
}

TEST_P (MessagesIn, HugeListsHarmNothing)
{
    auto box = settled ("@numsources 2");
    const bench::Atoms many (10000, [] {
        t_atom atom{};
        atom_setlong (&atom, 99999999999LL);
        return atom;
    }());
    for (const auto& row : bench::methodsOf (*box))
        if (row.kinds == std::vector<std::string>{ "A_GIMME" })
            box.send (row.message, many);
    for (const auto& name : bench::visibleAttributes (*box))
        box.send (name, many);
    settle();
    box.leftOutlet();
    EXPECT_EQ (bench::attributeOf (*box, "numsources").value().size(), 1u);
    box.console();
    EXPECT_EQ (saying (box, "source 1 name bob"), Messages());
}
