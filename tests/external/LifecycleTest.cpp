#include "ControlTest.h"
#include "EveryMessage.h"

#include "gui/verb/HalcyraComponent.h"
#include "host/bench/Objects.h"

#include <juce_gui_basics/juce_gui_basics.h>

CONTROL_TESTS (Lifecycle);

TEST_P (Lifecycle, BangReplaysEverythingInItsOrder)
{
    auto box = settled ("@numsources 2");
    box.send ("bang");
    settle();
    const auto heard = box.leftOutlet();
    EXPECT_THAT (box.notifications(), testing::Each ("modified")); // no attribute has another value
    Messages words;
    for (const auto& message : heard)
        words.push_back (message.substr (0, message.find (' ', message.find (' ') + 1)));
    EXPECT_EQ (words,
               (Messages{ "source 1",       "source 2",     "direct 0.",           "room 0.",       "early 0.",
                          "cluster 0.",     "reverb gain",  "reverb tr0",          "reverb trl",    "reverb trm",
                          "reverb trh",     "reverb fl",    "reverb fh",           "early start",   "early end",
                          "early distr",    "early shape",  "early width",         "cluster start", "cluster end",
                          "cluster distr",  "reverb start", "reverb modaldensity", "reverb air",    "reverb infinite",
                          "reverb airfreq", "speakers aed" }));
}

TEST_P (Lifecycle, WhatBangSendsBringsAChangedObjectIntoTheSameState)
{
    auto first = settled();
    auto second = settled();
    for (const auto* change :
         { "gain 5", "tr0 4", "direct 1 2 3 4 500 5000", "early_end 80", "cluster_end 250", "reverb_start 200",
           "source 3 aed 10 20 3", "speakers xyz 1 0 0 2 0 0 3 0 0 4 0 0 5 0 0 6 0 0", "infinite 1",
           "roomairabsorption 0" })
        second.send (change);
    settle();
    ASSERT_NE (stateOf (first), stateOf (second));
    ASSERT_TRUE (patch.connect (*first, 0, *second));
    first.send ("bang");
    settle();
    // Converting to angles and back loses a position's last bits.
    const auto sent = bench::stateOf (*first).value(), arrived = bench::stateOf (*second).value();
    ASSERT_EQ (sent.size(), arrived.size());
    for (std::size_t i = 0; i < sent.size(); ++i)
        if (sent[i].a_type == A_FLOAT)
            EXPECT_NEAR (sent[i].a_w.w_float, arrived[i].a_w.w_float, 1e-5) << i;
        else
            EXPECT_EQ (sent[i].a_w.w_long, arrived[i].a_w.w_long) << i;
}

TEST_P (Lifecycle, SizesAreTakenClippedAndThenFixed)
{
    auto box = settled ("@numsources 70 @numspeakers 0 @numinternals 1");
    EXPECT_EQ (box.attribute ("numsources"), "64");
    EXPECT_EQ (box.attribute ("numspeakers"), "1");
    EXPECT_EQ (box.attribute ("numinternals"), "2");
    EXPECT_EQ (saying (box, "numinternals 2"), Messages());
    EXPECT_EQ (saying (box, "numinternals 4"),
               Messages{ "error could not dynamically change number of internal channels" });
    EXPECT_EQ (saying (box, "numsources 5"), Messages{ "error could not dynamically change number of sources" });
    EXPECT_EQ (saying (box, "numspeakers 5"), Messages{ "error could not dynamically change number of speakers" });
    EXPECT_EQ (box.attribute ("numinternals"), "2");
    EXPECT_EQ (box.attribute ("numsources"), "64");
}

TEST_P (Lifecycle, SizesThatAreNoNumbersStayTheDefaults)
{
    auto box = settled ("@numsources foo @numspeakers @numinternals 3 4 @tr0 @windowtopleft");
    EXPECT_EQ (box.attribute ("numsources"), "6");
    EXPECT_EQ (box.attribute ("numspeakers"), "6");
    EXPECT_EQ (box.attribute ("numinternals"), "8");
    EXPECT_EQ (box.attribute ("windowtopleft"), "50. 800.");
    EXPECT_EQ (bench::attributeOf (*box, "sourcespositions").value().size(), 18u);
}

TEST_P (Lifecycle, AFreshObjectHidesAperturesAndShowsItsDefaults)
{
    auto box = settled ("@showaperture 1 @numsources 2 @name bob eve @gain 3");
    EXPECT_EQ (box.attribute ("showaperture"), "0");
    EXPECT_EQ (box.attribute ("defer"), "0");
    EXPECT_EQ (box.attribute ("format"), "aed");
    EXPECT_EQ (box.attribute ("name"), "\"1\" \"2\""); // a new scene resets the names
    EXPECT_EQ (box.attribute ("gain"), "3.");
    EXPECT_EQ (box.attribute ("early_start"), "22.22");
}

TEST_P (Lifecycle, TellsOfWordsThatAreNoAttributes)
{
    auto box = make ("halcyra~.control @nonsense 3");
    ASSERT_TRUE (box);
    settle();
    EXPECT_EQ (console().size(), 1u);
}

TEST_P (Lifecycle, TheWindowOpensOnceAndIsHidden)
{
    auto box = settled();
    EXPECT_EQ (box.window(), Messages());
    box.send ("open");
    settle();
    const auto opened = box.window();
    ASSERT_FALSE (opened.empty());
    EXPECT_EQ (opened[0].substr (0, 8), "created ");
    box.send ("open");
    settle();
    for (const auto& line : box.window())
        EXPECT_NE (line.substr (0, 8), "created ");
    box.send ("wclose");
    settle();
    EXPECT_EQ (box.window(), Messages{ "hidden" });
    const auto& component = *box.record<t_halcyra_control>()->component;
    EXPECT_FALSE (component.isShowing());
    box.send ("open");
    settle();
    EXPECT_TRUE (component.isShowing());
    box.free();
    settle();
}

TEST_P (Lifecycle, FreedWithCallsQueuedItIsForgotten)
{
    for (int i = 0; i < 10; ++i) {
        auto box = make ("halcyra~.control @numsources 3 @defer 1");
        box.send ("gain 3");
        box.send ("source 1 aed 30 0 1");
        box.send ("open");
        box.send ("store a", bench::Thread::scheduler);
        box.free();
    }
    settle();
    EXPECT_EQ (patch.names().size(), 0u);
}

TEST_P (Lifecycle, WhatTheHostGaveOutComesBack)
{
    const auto live = [this] {
        auto box = settled ("@numsources 2 @numspeakers 2");
        t_atom gain{};
        atom_setfloat (&gain, 2);
        putEntry ("changes", "gain", { gain });
        putEntry ("changes", "direct", bench::Atoms (6, gain));
        for (const auto* message : everyMessage) {
            box.send (message);
            settle();
        }
        bench::presetOf (*box);
        bench::setState (*box, bench::stateOf (*box).value());
        box.free();
        freeDictionaries();
        settle();
        transcript();
        return std::pair (bench::numberOfBlocks(), bench::numberOfObjects());
    };
    const auto afterTheFirst = live();
    EXPECT_EQ (live(), afterTheFirst);
}

TEST_P (Lifecycle, AThousandObjectsComeAndGo)
{
    for (int i = 0; i < 1000; ++i) {
        auto box = make ("halcyra~.control @numsources 1 @numspeakers 1");
        ASSERT_TRUE (box) << i;
        if (i % 100 == 0)
            settle();
        box.free();
    }
    settle();
}

TEST_P (Lifecycle, AssistanceNamesInletAndOutlets)
{
    auto box = settled();
    EXPECT_EQ (bench::assistanceOf (*box, ASSIST_INLET, 0), "inlet");
    EXPECT_EQ (bench::assistanceOf (*box, ASSIST_OUTLET, 0), "outlet");
    EXPECT_EQ (bench::assistanceOf (*box, ASSIST_OUTLET, 1), "dumpout");
    EXPECT_EQ (bench::numberOfOutlets (*box), 2);
}

TEST_P (Lifecycle, LoadingTwiceKeepsOneMessageManager)
{
    auto* manager = juce::MessageManager::getInstanceWithoutCreating();
    ASSERT_NE (manager, nullptr);
    EXPECT_EQ (ext_main (nullptr), 0);
    EXPECT_EQ (juce::MessageManager::getInstanceWithoutCreating(), manager);
    EXPECT_TRUE (settled());
}

TEST_P (Lifecycle, AWindowThatWouldTouchNoScreenOpensOnOne)
{
    // The screen in memory is 1400 by 900 pixels; rows of top, left, and where the window appears.
    const std::pair<const char*, const char*> rows[] = {
        { "50 800", "created 800 50 935 462 Halcyra" },
        { "899 1399", "created 1399 899 935 462 Halcyra" }, // one pixel of it is visible
        { "900 0", "created 0 438 935 462 Halcyra" },
        { "0 1400", "created 465 0 935 462 Halcyra" },
        { "-462 0", "created 0 0 935 462 Halcyra" },
        { "-5000 -5000", "created 0 0 935 462 Halcyra" },
        { "1e9 1e9", "created 465 438 935 462 Halcyra" },
        { "1e30 -1e30", "created 0 438 935 462 Halcyra" },
    };
    for (const auto& [place, created] : rows) {
        auto box = settled (std::string ("@windowtopleft ") + place);
        box.send ("open");
        settle();
        EXPECT_EQ (box.window().at (0), created) << place;
        box.free();
    }
}
