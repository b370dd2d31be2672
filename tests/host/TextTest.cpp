#include "host/api/MaxApi.h"
#include "host/bench/Words.h"
#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace
{
using bench::atomOf;
using bench::textOf;

struct WordRow
{
    const char* line;
    std::vector<std::string> atoms; // type letter and text
};

std::string described (const t_atom& atom)
{
    const auto letter = atom.a_type == A_LONG ? "l " : atom.a_type == A_FLOAT ? "f " : "s ";
    return letter + textOf (bench::Atoms{ atom });
}

TEST (BenchText, ReadsLongsFloatsAndSymbols)
{
    const WordRow rows[] = {
        { "1 -2 +3 007", { "l 1", "l -2", "l 3", "l 7" } },
        { "3. -1e-3 .5 1e5 +2.5E+1", { "f 3.", "f -0.001", "f 0.5", "f 1e+05", "f 25." } },
        { ". - + e5 1e 1e+ 1.2.3 0x10 nan inf 1-2",
          { "s .", "s -", "s +", "s e5", "s 1e", "s 1e+", "s 1.2.3", "s 0x10", "s nan", "s inf", "s 1-2" } },
        { "\"3\" \"\" \"a b\" a\\ b \\\"", { "s \"3\"", "s \"\"", "s \"a b\"", "s \"a b\"", "s \"\\\"\"" } },
        { "99999999999999999999 -9223372036854775808", { "l 9223372036854775807", "l -9223372036854775808" } },
        { "  \t ", {} },
        { "open \"without end", { "s open", "s \"without end\"" } },
    };
    for (const auto& row : rows) {
        std::vector<std::string> atoms;
        for (const auto& word : bench::wordsOf (row.line))
            atoms.push_back (described (atomOf (word)));
        EXPECT_EQ (atoms, row.atoms) << row.line;
    }
}

TEST (BenchText, FloatsAreShortestAndReadBackToTheSameFloat)
{
    struct Row
    {
        float value;
        const char* text;
    };
    const Row rows[] = { { 3, "3." },          { 22.22F, "22.22" }, { 1e-5F, "1e-05" },        { -0.0F, "-0." },
                         { 0.1F, "0.1" },      { 20000, "20000." }, { 16777216, "16777216." }, { 1e30F, "1e+30" },
                         { 105.64F, "105.64" } };
    for (const auto& row : rows) {
        EXPECT_EQ (textOf (row.value), row.text);
        EXPECT_EQ (std::strtof (row.text, nullptr), row.value);
    }
    for (float value = 1.17549435e-38F; std::isfinite (value * 7.3F); value *= 7.3F) {
        const auto atom = atomOf ({ textOf (value), false });
        EXPECT_EQ (atom.a_type, A_FLOAT) << textOf (value);
        EXPECT_EQ (static_cast<float> (atom_getfloat (&atom)), value);
    }
}

TEST (BenchText, SymbolsArePrintedSoThatTheyReadBack)
{
    for (const auto* text : { "plain", "two words", "", "3", "3.", "a\"b", "back\\slash", "\"", " x ", "@at", ";" }) {
        const auto words = bench::wordsOf (bench::quotedIfNeeded (text));
        ASSERT_EQ (words.size(), 1u) << text;
        const auto atom = atomOf (words[0]);
        EXPECT_EQ (atom_getsym (&atom), gensym (text));
    }
    EXPECT_EQ (bench::quotedIfNeeded ("a\nb"), "\"a\\nb\"");
}

TEST (MaxAtoms, NumbersConvertAndNothingElseDoes)
{
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    struct Row
    {
        double from;
        t_atom_long to;
    };
    const Row rows[] = { { 2.9, 2 },
                         { -2.9, -2 },
                         { std::nan (""), 0 },
                         { infinity, std::numeric_limits<t_atom_long>::max() },
                         { -1e300, std::numeric_limits<t_atom_long>::min() } };
    t_atom atom{};
    for (const auto& row : rows) {
        atom_setfloat (&atom, row.from);
        EXPECT_EQ (atom_getlong (&atom), row.to) << row.from;
        EXPECT_EQ (atom_getsym (&atom), gensym (""));
        EXPECT_EQ (atom_getobj (&atom), nullptr);
    }
    atom_setlong (&atom, 5);
    EXPECT_EQ (atom_getfloat (&atom), 5.0);
    atom_setsym (&atom, gensym ("5"));
    EXPECT_EQ (atom_getlong (&atom), 0);
}

TEST (MaxAtoms, ArraysOfNumbersTakeTheSmallerCountAndLeaveTheRest)
{
    auto atoms = bench::atomsOf (std::string ("1 2.5 x 4"));
    float values[6] = { 9, 9, 9, 9, 9, 9 };
    EXPECT_EQ (atom_getfloat_array (4, atoms.data(), 6, values), MAX_ERR_NONE);
    EXPECT_THAT (values, testing::ElementsAre (1, 2.5F, 0, 4, 9, 9));
    EXPECT_EQ (atom_getfloat_array (4, atoms.data(), 1, values + 4), MAX_ERR_NONE);
    EXPECT_THAT (values, testing::ElementsAre (1, 2.5F, 0, 4, 1, 9));
    EXPECT_NE (atom_getfloat_array (4, nullptr, 4, values), MAX_ERR_NONE);
}

TEST (MaxAtoms, AllocationTakesTheCallersMemoryIfThereIsSome)
{
    t_clong ac[2] = { 0, 0x5A5A5A5A };
    t_atom* av = nullptr;
    char alloc = 9;
    ASSERT_EQ (atom_alloc_array (3, ac, &av, &alloc), MAX_ERR_NONE);
    EXPECT_EQ (ac[0], 3);
    EXPECT_EQ (ac[1], 0x5A5A5A5A);
    EXPECT_EQ (alloc, 1);
    auto* before = av;
    ASSERT_EQ (atom_alloc_array (2, ac, &av, &alloc), MAX_ERR_NONE);
    EXPECT_EQ (av, before);
    EXPECT_EQ (ac[0], 3);
    EXPECT_EQ (alloc, 0);
    sysmem_freeptr (av);
}

TEST (MaxMemory, CopiesTheSourceFirstAndEndsTextsWithAZero)
{
    char overlapping[] = "abcdef";
    sysmem_copyptr (overlapping, overlapping + 2, 4);
    EXPECT_STREQ (overlapping, "ababcd");
    char small[4] = { 'x', 'x', 'x', 'x' };
    strncpy_zero (small, "abcdef", 3);
    EXPECT_STREQ (small, "ab");
    EXPECT_EQ (small[3], 'x');
    sysmem_freeptr (nullptr);
    alignas (16) char foreign[64] = {};
    EXPECT_DEATH (sysmem_freeptr (foreign + 32), "sysmem_freeptr got memory");
}

TEST (MaxSymbols, AreInternedSortedByBytesAndUnique)
{
    t_symbol* names[] = { gensym ("b"), gensym ("B"), gensym ("a1"), gensym ("a") };
    EXPECT_EQ (symbolarray_sort (4, names), MAX_ERR_NONE);
    EXPECT_THAT (names, testing::ElementsAre (gensym ("B"), gensym ("a"), gensym ("a1"), gensym ("b")));
    const auto* unique = symbol_unique();
    EXPECT_NE (unique, symbol_unique());
    EXPECT_EQ (std::string (unique->s_name).size(), 10u);
    EXPECT_EQ (unique->s_name[0], 'u');
    const auto* table = common_symbols_gettable();
    EXPECT_EQ (table->at (common_symbol::dumpout), gensym ("dumpout"));
    EXPECT_EQ (table->at (common_symbol::modified), gensym ("modified"));
    EXPECT_EQ (table->at (common_symbol::nothing), gensym (""));
}
}
