#include "ControlTest.h"

#include "host/bench/Words.h"
#include "max/AttributeServices.h"
#include "max/PattrState.h"
#include "support/bench/HookClass.h"

CONTROL_TESTS (SavedState);

namespace
{

constexpr const char* changes[] = {
    "gain 5",
    "tr0 4",
    "direct 1 2 3 4 500 5000",
    "early_start 12",
    "reverb_start 120",
    "infinite 1",
    "source 1 aed 10 20 3",
    "source 2 name bob",
    "source 2 color 1 0 0 1",
    "listener xyz 1 2 3",
    "listener yaw 30",
    "speaker 1 xyz 3 2 1",
    "showradius 1",
    "gridmode none",
    "zoom 0.05",
    "globalproportion 0.2", // 0.05 is now the minimum of the margin above
    "yoffset 5",
    "yoffset -0.",
    "format xyz",
    "viewpoint front",
    "yaw 20 40",
    "yaw 20 -0.",
    "backgroundcolor 0.1 0.2 0.3 1",
    "windowtopleft 10 20",
    "windowtitle hall",
    "showspeakerslabel 0",
    "numareas 3",
};

}

TEST_P (SavedState, GoesIntoAnotherObjectOfTheSameSizes)
{
    auto first = settled ("@numsources 2 @numspeakers 2");
    auto second = settled ("@numsources 2 @numspeakers 2");
    for (const auto* change : changes)
        first.send (change);
    settle();
    EXPECT_EQ (first.console(), Messages());
    ASSERT_NE (stateOf (first), stateOf (second));
    ASSERT_TRUE (bench::setState (*second, bench::stateOf (*first).value()));
    settle();
    first.leftOutlet();
    second.leftOutlet();
    first.send ("dump");
    second.send ("dump");
    EXPECT_EQ (first.dumpOutlet(), second.dumpOutlet());
}

TEST_P (SavedState, StagesThatCrossTheirNeighboursComeBackInOneGo)
{
    const std::vector<const char*> receivers[] = {
        {},
        { "cluster_start 70" }, // cluster_end would limit it
        { "cluster_end 290", "early_end 110", "early_start 100", "cluster_start 120" },
    };
    for (const auto& changes : receivers) {
        auto first = settled();
        auto second = settled();
        for (const auto* change : { "cluster_end 60", "early_start 2" })
            first.send (change);
        for (const auto* change : changes)
            second.send (change);
        settle();
        EXPECT_NE (stateOf (first), stateOf (second));
        bench::setState (*second, bench::stateOf (*first).value());
        settle();
        EXPECT_EQ (stateOf (first), stateOf (second));
    }
}

/** Locks and constraints are lifted while a recall sets what they refuse or bend, and hold again behind it. */
TEST_P (SavedState, WithALockReplacesAnotherWithTheSameLock)
{
    struct Row
    {
        const char *lock, *saved, *held, *refused;
    };
    for (const auto* defer : { "defer 0", "defer 1" })
        for (const auto& row : {
                 Row{ "zoomlock 1", "zoom 2", "zoom 0.5", "zoom 3" },
                 Row{ "radiusconstraint 1", "sourcespositions 3 0 0 0 4 0", "sourcespositions 1 1 0 2 0 0",
                      "source 1 xyz 9 0 0" },
                 Row{ "windowmoveable 0", "windowtopleft 10 20", "windowtopleft 30 40", nullptr },
                 Row{ "globalproportion 0.2", "zoom 0.05", "zoom 1", nullptr },
                 Row{ "showheadphones 1", "showspeakers 0", "showspeakers 1", nullptr },
                 Row{ "display 0", "source 1 xyz 1 2 3", "source 1 xyz 3 2 1", nullptr },
             }) {
            SCOPED_TRACE (std::string (row.lock) + ", " + defer);
            auto first = settled ("@numsources 2 @numspeakers 2");
            auto second = settled ("@numsources 2 @numspeakers 2");
            for (const auto& [box, change] : { std::pair (&first, row.saved), std::pair (&second, row.held) })
                for (const auto* message : { defer, change, row.lock }) {
                    box->send (message);
                    settle();
                }
            ASSERT_NE (stateOf (first), stateOf (second));
            bench::setState (*second, bench::stateOf (*first).value());
            settle();
            EXPECT_EQ (stateOf (first), stateOf (second));
            if (row.refused == nullptr)
                continue;
            for (auto* box : { &first, &second }) {
                box->send (row.refused);
                settle();
            }
            EXPECT_EQ (stateOf (first), stateOf (second));
        }
}

TEST_P (SavedState, APartOfAStateLeavesALockThatItDoesNotHold)
{
    struct Row
    {
        const char *lock, *value;
    };
    for (const auto& row : { Row{ "zoomlock 1", "zoom 2." }, Row{ "radiusconstraint 1", "sourcespositions 3. 0. 0." },
                             Row{ "windowmoveable 0", "windowtopleft 10. 20." } }) {
        auto box = settled ("@numsources 1");
        box.send (row.lock);
        settle();
        const auto value = bench::messageOf (bench::wordsOf (row.value));
        putEntry ("part", value.selector->s_name, value.atoms);
        EXPECT_EQ (saying (box, "dictionary part"), Messages()) << row.lock;
        const auto lock = bench::messageOf (bench::wordsOf (row.lock));
        EXPECT_EQ (box.attribute (lock.selector->s_name), bench::textOf (lock.atoms));
        EXPECT_EQ (box.attribute (value.selector->s_name), bench::textOf (value.atoms));
    }
}

TEST_P (SavedState, OfAnotherLengthChangesNothing)
{
    auto box = settled();
    const auto before = stateOf (box);
    auto atoms = bench::stateOf (*box).value();
    const auto count = atoms.size();
    atoms.push_back (atoms.front());
    bench::setState (*box, atoms);
    settle();
    EXPECT_EQ (box.console(), Messages{ "error setvalueof error (received " + std::to_string (count + 1) + " atoms. " +
                                        std::to_string (count) + " atoms were expected)" });
    EXPECT_EQ (stateOf (box), before);
}

TEST_P (SavedState, OfWordsAloneLeavesTheSizesAndIsUndoneByAGoodOne)
{
    auto box = settled ("@numsources 2");
    const auto before = stateOf (box);
    const auto good = bench::stateOf (*box).value();
    auto words = good;
    for (auto& atom : words)
        atom_setsym (&atom, gensym ("word"));
    bench::setState (*box, words);
    settle();
    EXPECT_NE (stateOf (box), before);
    EXPECT_EQ (bench::stateOf (*box).value().size(), good.size());
    bench::setState (*box, good);
    settle();
    EXPECT_EQ (stateOf (box), before);
}

TEST_P (SavedState, TravelsByDictionary)
{
    auto first = settled ("@numsources 2 @numspeakers 2");
    auto second = settled ("@numsources 2 @numspeakers 2");
    for (const auto* change : changes)
        first.send (change);
    settle();
    transcript();
    ASSERT_TRUE (patch.connect (*first, 1, *second)); // the dump outlet into the inlet
    first.send ("dumpdict");
    settle();
    EXPECT_EQ (stateOf (first), stateOf (second));
}

TEST_P (SavedState, TravelsByPreset)
{
    auto box = settled ("@numsources 64 @numspeakers 64"); // 1,200 values: none is lost, whatever the road
    for (const auto* change : { "gain 7", "zoffset 3" })
        box.send (change);
    settle();
    const auto preset = bench::presetOf (*box);
    const bench::Atoms values (preset.begin() + 3, preset.end());
    EXPECT_EQ (bench::textOf (values), stateOf (box));
    EXPECT_EQ (preset[2].a_w.w_sym, gensym ("recallpreset"));
    for (const auto thread : { bench::Thread::main, bench::Thread::scheduler }) {
        for (const auto* change : { "gain 1", "zoffset 0" })
            box.send (change);
        settle();
        box.send ("recallpreset", values, thread);
        settle();
        EXPECT_EQ (bench::textOf (values), stateOf (box));
    }
    EXPECT_EQ (box.console(), Messages());
}

TEST_P (SavedState, GoesIntoNewMemoryUnlessTheCallerHasSome)
{
    auto box = settled();
    std::vector<t_atom> callers (4000);
    for (const t_clong room : { 0, 4000 }) {
        auto count = room;
        auto* atoms = callers.data();
        ASSERT_EQ (orvanemax_getvalueof ((*box).object, &count, &atoms), MAX_ERR_NONE);
        EXPECT_EQ (bench::textOf (bench::Atoms (atoms, atoms + count)), stateOf (box));
        EXPECT_EQ (atoms == callers.data(), room > 0);
        EXPECT_EQ (box.console(), room > 0 ? Messages{ "warn orvanemax_getvalueof : memory passed in" } : Messages());
        if (room == 0)
            sysmem_freeptr (atoms);
    }
}

TEST_P (SavedState, ADictionaryIsEmptyOnceItsReceiversHaveReturned)
{
    patch.load (hook_main);
    auto box = settled();
    auto hook = make ("test.hook");
    ASSERT_TRUE (patch.connect (*box, 1, *hook));
    t_dictionary* kept = nullptr;
    t_clong during = 0;
    const auto entries = [&] {
        t_clong count = 0;
        t_symbol** keys = nullptr;
        dictionary_getkeys (kept, &count, &keys);
        dictionary_freekeys (kept, count, keys);
        return count;
    };
    onHook() = [&] {
        for (const auto& event : take (bench::Event::Kind::out, box->name))
            kept = dictobj_findregistered_retain (atom_getsym (event.atoms.data()));
        during = entries();
    };
    box.send ("dumpdict gain tr0");
    settle();
    onHook() = nullptr;
    EXPECT_EQ (during, 2);
    EXPECT_EQ (entries(), 0);
    dictobj_release (kept);
}

TEST_P (SavedState, BadDictionariesAreToldAndSendNothing)
{
    auto box = settled();
    EXPECT_EQ (saying (box, "dumpdict gain 3"), Messages{ "error invalid message : dumpdict gain 3 " });
    EXPECT_EQ (box.dumpOutlet(), Messages());
    EXPECT_EQ (saying (box, "dumpdict nothing"), Messages{ "error no attribute nothing" });
    EXPECT_EQ (saying (box, "dictionary nowhere"), Messages{ "error unable to reference dictionary named nowhere" });
}

TEST_P (SavedState, EntriesOfADictionaryThatAreNoAtomsAreToldAndTheOthersTaken)
{
    auto box = settled();
    const auto objectOf = [] (t_dictionary* dictionary) { return reinterpret_cast<t_object*> (dictionary); };
    auto* dictionary = dictionary_new();
    auto* inner = dictionary_new();
    std::vector<t_atom> list (6);
    atom_setobj (list.data(), inner);
    dictionary_appenddictionary (dictionary, gensym ("gain"), objectOf (dictionary_new()));
    dictionary_appendatomarray (dictionary, gensym ("tr0"), reinterpret_cast<t_object*> (atomarray_new (0, nullptr)));
    dictionary_appendatoms (dictionary, gensym ("direct"), 6, list.data());
    dictionary_appendfloat (dictionary, gensym ("trl"), 2);
    dictionary_appendsym (dictionary, gensym ("classdescription"), gensym ("mine"));
    auto* name = gensym ("mixed");
    dictionary = dictobj_register (dictionary, &name);
    const auto before = stateOf (box);
    const auto* documentation = box.record<t_halcyra_control>()->classdescription;
    EXPECT_EQ (saying (box, "dictionary mixed"), Messages{ "error entry gain is not atom ? " });
    EXPECT_EQ (box.record<t_halcyra_control>()->classdescription, documentation); // users cannot set it
    EXPECT_EQ (box.leftOutlet(), Messages{ "reverb trl 2." });
    box.send ("trl 1");
    settle();
    EXPECT_EQ (stateOf (box), before);
    object_free (dictionary);
    object_free (inner);
}

TEST_P (SavedState, ResetGoesBackToDefaultsButForFixedAttributes)
{
    auto box = settled ("@numsources 2");
    for (const auto* change : { "showradius 1", "zoom 3", "radius 2 2", "windowtitle hall" })
        box.send (change);
    settle();
    for (const auto* name : { "showradius", "zoom", "radius", "windowtitle" }) {
        t_atom word{};
        atom_setsym (&word, gensym (name));
        orvanemax_reset ((*box).object, nullptr, 1, &word);
    }
    settle();
    EXPECT_EQ (box.attribute ("showradius"), "0");
    EXPECT_EQ (box.attribute ("zoom"), "1.");
    EXPECT_EQ (box.attribute ("radius"), "2. 2.");
    EXPECT_EQ (box.attribute ("windowtitle"), "hall");
    orvanemax_reset ((*box).object, nullptr, 0, nullptr);
    settle();
    EXPECT_EQ (box.attribute ("numsources"), "2");
    EXPECT_EQ (box.attribute ("gain"), "0.");
}
