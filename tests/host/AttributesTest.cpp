#include "ExampleClass.h"
#include "support/bench/BenchTest.h"

namespace
{
class BenchAttributes : public BenchTest
{
protected:
    BenchAttributes() { patch.load (example_main); }
};

TEST_F (BenchAttributes, OfTypeLongAre32BitsWideAndLeaveTheirNeighbourAlone)
{
    auto box = make ("bench.example @count 9");
    const auto* x = box.record<t_example>();
    EXPECT_EQ (x->count, 9);
    EXPECT_EQ (x->guard, 77);
    box.send ("series 1 2 3 4 5");
    EXPECT_EQ (x->seriesCount, 4);
    EXPECT_EQ (x->seriesGuard, 77);
    EXPECT_EQ (box.attribute ("series"), "1. 2. 3. 4.");
}

TEST_F (BenchAttributes, AnswerWithoutTouchingWhatLiesBehindTheCount)
{
    auto box = make ("bench.example");
    for (const auto* name : { "count", "pair", "custom", "nosuch" }) {
        t_clong ac[2] = { 0, 0x5A5A5A5A };
        t_atom* av = nullptr;
        object_attr_getvalueof (box->object, gensym (name), ac, &av);
        EXPECT_EQ (ac[1], 0x5A5A5A5A) << name;
        sysmem_freeptr (av);
    }
    EXPECT_THAT (console(), testing::IsEmpty());
}

TEST_F (BenchAttributes, UseTheMemoryOfACallerWhoBringsSome)
{
    auto box = make ("bench.example");
    t_atom own[3];
    atom_setlong (own + 1, -1);
    t_clong ac = 1;
    auto* av = own;
    ASSERT_EQ (object_attr_getvalueof (box->object, gensym ("pair"), &ac, &av), MAX_ERR_NONE);
    EXPECT_EQ (av, own);
    EXPECT_EQ (ac, 1);
    EXPECT_EQ (atom_getfloat (own), 50.0);
    EXPECT_EQ (atom_getlong (own + 1), -1); // the memory had room for one atom
}

TEST_F (BenchAttributes, PassTheFilterBeforeTheSetterOnACopyOfTheAtoms)
{
    auto box = make ("bench.example");
    t_atom atom;
    atom_setfloat (&atom, 70.9);
    EXPECT_EQ (object_attr_setvalueof (box->object, gensym ("count"), 1, &atom), MAX_ERR_NONE);
    EXPECT_EQ (box.record<t_example>()->count, 64);
    EXPECT_EQ (atom_getfloat (&atom), 70.9);
    atom_setlong (&atom, 1000);
    object_attr_setvalueof (box->object, gensym ("custom"), 1, &atom);
    EXPECT_EQ (box.record<t_example>()->custom, 100);
    EXPECT_EQ (box.record<t_example>()->lastCount, 1);
}

TEST_F (BenchAttributes, OneSidedFiltersLeaveTheOtherSideFree)
{
    auto box = make ("bench.example");
    for (const auto& [set, read] : { std::pair{ -5.0, "-5." }, std::pair{ 400.0, "300." } }) {
        t_atom atom;
        atom_setfloat (&atom, set);
        object_attr_setvalueof (box->object, gensym ("level"), 1, &atom);
        EXPECT_EQ (box.attribute ("level"), read);
    }
}

TEST_F (BenchAttributes, TellOneNotificationForEachSetEvenOfAnEqualValue)
{
    auto box = make ("bench.example");
    box.notifications();
    box.send ("count 6");
    box.send ("count 6");
    EXPECT_EQ (box.notifications(), (Messages{ "attr_modified", "attr_modified" }));
}

TEST_F (BenchAttributes, GiveAMissingPropertyAsNothingOrAsAnErrorAsTheBenchIsTold)
{
    auto box = make ("bench.example");
    auto* attribute = object_attr_get (box->object, gensym ("count"));
    for (const bool isError : { false, true }) {
        patch.setMissingPropertyIsError (isError);
        t_clong ac = 5;
        t_atom* av = nullptr;
        EXPECT_EQ (object_attr_getvalueof (attribute, gensym ("order"), &ac, &av) != MAX_ERR_NONE, isError);
        EXPECT_EQ (ac, 0);
    }
}

TEST_F (BenchAttributes, WaitForTheMainThreadIfTheyAreFlaggedAndTheBenchIsTold)
{
    auto box = make ("bench.example");
    auto* attribute = object_attr_get (box->object, gensym ("count"));
    const auto plain = reinterpret_cast<std::intptr_t> (object_method (attribute, gensym ("getflags")));
    for (const bool flagged : { false, true })
        for (const bool honoured : { false, true }) {
            object_method (attribute, gensym ("setflags"), plain | (flagged ? ATTR_SET_DEFER_LOW : 0));
            patch.setDeferFlagsAreHonoured (honoured);
            box.send ("count 5");
            box.send ("count 6", bench::Thread::scheduler);
            EXPECT_EQ (box.attribute ("count"), flagged && honoured ? "5" : "6");
            settle();
            EXPECT_EQ (box.attribute ("count"), "6");
        }
    object_method (attribute, gensym ("setflags"), plain);
}

TEST_F (BenchAttributes, DescribeThemselves)
{
    auto box = make ("bench.example");
    auto* attribute = object_attr_get (box->object, gensym ("pair"));
    EXPECT_EQ (object_method (attribute, gensym ("getname")), gensym ("pair"));
    EXPECT_EQ (object_method (attribute, gensym ("gettype")), gensym ("float32"));
    EXPECT_EQ (object_attr_get (box->object, gensym ("nosuch")), nullptr);
    t_clong count = 0;
    t_symbol** names = nullptr;
    ASSERT_EQ (object_attr_getnames (attribute, &count, &names), MAX_ERR_NONE);
    EXPECT_EQ (count, 1);
    EXPECT_EQ (names[0], gensym ("default"));
    sysmem_freeptr (names);
}

TEST_F (BenchAttributes, OfTheBoxStandBehindThoseOfTheClass)
{
    auto box = make ("bench.example @patching_rect 1 2 3 4");
    t_clong count = 0;
    t_symbol** names = nullptr;
    ASSERT_EQ (object_attr_getnames (box->object, &count, &names), MAX_ERR_NONE);
    const std::vector<t_symbol*> all (names, names + count);
    sysmem_freeptr (names);
    EXPECT_EQ (all.front(), gensym ("count"));
    EXPECT_THAT (all, testing::Contains (gensym ("patching_rect")));
    EXPECT_EQ (box.attribute ("patching_size"), "3. 4.");
    EXPECT_THAT (bench::visibleAttributes (*box), testing::Not (testing::Contains ("patching_rect")));
    EXPECT_THAT (console(), testing::IsEmpty());
}

TEST_F (BenchAttributes, TellTheClientsOfTheirObjectWhatWasSet)
{
    static Messages heard;
    const auto notify = [] (t_object*, t_symbol* name, t_symbol* message, void*, void* data) -> t_max_err {
        const auto* attribute = static_cast<t_symbol*> (object_method (data, gensym ("getname")));
        heard.push_back (std::string (name->s_name) + " " + message->s_name + " " +
                         (attribute == nullptr ? "-" : attribute->s_name));
        return MAX_ERR_NONE;
    };
    auto* c = class_new ("bench.client", nullptr, nullptr, sizeof (t_object), nullptr, 0);
    class_addmethod (c, max_method (+notify), "notify", A_CANT, 0);
    auto* client = object_alloc (c);
    auto box = make ("bench.example");
    EXPECT_EQ (object_attach_byptr (box->object, client), MAX_ERR_NONE);
    EXPECT_EQ (object_attach_byptr (box->object, client), MAX_ERR_DUPLICATE);
    box.send ("count 3");
    object_notify (box->object, gensym ("modified"), nullptr);
    EXPECT_EQ (object_detach_byptr (box->object, client), MAX_ERR_NONE);
    box.send ("count 4");
    EXPECT_EQ (heard, (Messages{ "b1 attr_modified count", "b1 modified -" }));
    object_free (client);
}

TEST_F (BenchAttributes, OfAClassWithoutADictionaryComeAsTheWordsOfTheBox)
{
    static t_class* c = nullptr;
    static Messages plain;
    const auto makeOne = [] (t_symbol*, t_clong argc, t_atom* argv) {
        auto* x = object_alloc (c);
        const auto words = static_cast<std::int16_t> (argc);
        plain.push_back (bench::textOf (bench::Atoms (argv, argv + attr_args_offset (words, argv))));
        attr_args_process (x, words, argv);
        return x;
    };
    c = class_new ("bench.plain", max_method (+makeOne), nullptr, sizeof (t_example), nullptr, A_GIMME, 0);
    class_addattr (c, attr_offset_new ("count", gensym ("long"), 0, nullptr, nullptr, calcoffset (t_example, count)));
    class_attr_addattr_parse (c, "count", "default", gensym ("long"), 0, "6");
    class_register (CLASS_BOX, c);
    EXPECT_EQ (make ("bench.plain 1 x @count 5 @what 2").attribute ("count"), "5");
    EXPECT_EQ (console(), Messages{ "error \"what\" is not a valid attribute argument" });
    EXPECT_EQ (make ("bench.plain").attribute ("count"), "0"); // only the class uses its default
    EXPECT_EQ (plain, (Messages{ "1 x", "" }));
}

/** What a function that takes a 32-bit count as 64 bits would read. */
std::int64_t wideCount = 0;

void wideMessage (t_object*, t_symbol*, std::int64_t argc, t_atom*) { wideCount = argc; }

TEST (HostCalls, LeaveRubbishAboveA32BitCount)
{
    static t_class* c = nullptr;
    const auto makeOne = [] (t_symbol*, t_clong, t_atom*) { return object_alloc (c); };
    c = class_new ("bench.wide", max_method (+makeOne), nullptr, sizeof (t_object), nullptr, A_GIMME, 0);
    class_addmethod (c, max_method (wideMessage), "wide", A_GIMME, 0);
    class_register (CLASS_BOX, c);
    bench::Bench patch;
    patch.send (*patch.make ("w", "bench.wide"), "wide 1 2 3");
    EXPECT_EQ (static_cast<t_clong> (wideCount), 3);
    EXPECT_NE (wideCount, 3);
}
}
