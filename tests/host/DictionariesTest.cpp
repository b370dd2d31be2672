#include "host/bench/Bench.h"
#include "host/bench/Words.h"
#include <gmock/gmock.h>

namespace
{
t_symbol* key (const char* text) { return gensym (text); }

std::vector<std::string> keysOf (t_dictionary* d, bool ordered)
{
    t_clong count = 0;
    t_symbol** keys = nullptr;
    (ordered ? dictionary_getkeys_ordered : dictionary_getkeys) (d, &count, &keys);
    std::vector<std::string> names;
    names.reserve (static_cast<std::size_t> (count));
    for (t_clong i = 0; i < count; ++i)
        names.emplace_back (keys[i]->s_name);
    dictionary_freekeys (d, count, keys);
    return names;
}

TEST (MaxDictionaries, KeepTheOrderOfInsertionAndThePlaceOfAKeyThatIsSetAgain)
{
    auto* d = dictionary_new();
    for (const auto* name : { "z", "a", "m" })
        dictionary_appendlong (d, key (name), 1);
    dictionary_appendsym (d, key ("z"), key ("again"));
    EXPECT_EQ (keysOf (d, true), (std::vector<std::string>{ "z", "a", "m" }));
    EXPECT_THAT (keysOf (d, false), testing::UnorderedElementsAre ("z", "a", "m"));
    t_atom atom{};
    ASSERT_EQ (dictionary_getatom (d, key ("z"), &atom), MAX_ERR_NONE);
    EXPECT_EQ (atom_getsym (&atom), key ("again"));
    EXPECT_NE (dictionary_getatom (d, key ("none"), &atom), MAX_ERR_NONE);
    object_free (d);
}

TEST (MaxDictionaries, OwnWhatTheyHoldAndGiveItBackOnlyAsACopyOrABorrowedPointer)
{
    auto* d = dictionary_new();
    auto atoms = bench::atomsOf (std::string ("1 2.5 x"));
    dictionary_appendatoms (d, key ("list"), 3, atoms.data());
    dictionary_appenddictionary (d, key ("inner"), &dictionary_new()->ob);
    t_atom atom{};
    dictionary_getatom (d, key ("list"), &atom);
    EXPECT_EQ (atomisatomarray (&atom), 1);
    EXPECT_EQ (atomisdictionary (&atom), 0);
    t_clong ac[2] = { 0, 0x5A5A5A5A };
    t_atom* av = nullptr;
    ASSERT_EQ (atomarray_copyatoms (static_cast<t_atomarray*> (atom_getobj (&atom)), ac, &av), MAX_ERR_NONE);
    EXPECT_EQ (ac[0], 3);
    EXPECT_EQ (ac[1], 0x5A5A5A5A);
    dictionary_clear (d);
    EXPECT_EQ (dictionary_hasentry (d, key ("list")), 0);
    EXPECT_EQ (atom_getfloat (av + 1), 2.5);
    sysmem_freeptr (av);
    object_free (d);
}

TEST (MaxDictionaries, LiveOnUnderTheirLastRetainer)
{
    t_symbol* name = nullptr;
    auto* d = dictobj_register (dictionary_new(), &name);
    ASSERT_NE (name, nullptr);
    dictionary_appendlong (d, key ("a"), 4);
    auto* found = dictobj_findregistered_retain (name);
    ASSERT_EQ (found, d);
    object_free (d);
    EXPECT_EQ (dictobj_findregistered_retain (name), nullptr);
    EXPECT_EQ (dictionary_hasentry (found, key ("a")), 1);
    EXPECT_EQ (dictobj_release (found), MAX_ERR_NONE);
    EXPECT_NE (dictobj_release (found), MAX_ERR_NONE);
}

TEST (MaxDictionaries, GiveTheBearerOfANameThatIsTaken)
{
    auto* name = gensym ("taken by one");
    auto* first = dictobj_register (dictionary_new(), &name);
    EXPECT_EQ (dictobj_register (dictionary_new(), &name), first);
    object_free (first);
}

TEST (MaxObjects, RefuseWhatIsNoObject)
{
    int nothing[16] = {};
    EXPECT_EQ (object_classname (nothing), nullptr);
    EXPECT_EQ (object_method (nothing, gensym ("bang")), nullptr);
    EXPECT_NE (object_free (nothing), MAX_ERR_NONE);
    EXPECT_EQ (object_free (nullptr), MAX_ERR_NONE);
    EXPECT_NE (dictionary_appendlong (nullptr, gensym ("a"), 1), MAX_ERR_NONE);
    EXPECT_EQ (outlet_bang (nullptr), nullptr);
    object_error (nullptr, "of nobody");
}
}
