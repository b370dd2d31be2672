#include "max/Atoms.h"

#include "max/MaxErrorText.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <vector>

using orvanemax::Atoms;

namespace
{

t_atom of (int value)
{
    t_atom atom{};
    atom_setlong (&atom, value);
    return atom;
}
t_atom of (double value)
{
    t_atom atom{};
    atom_setfloat (&atom, value);
    return atom;
}
t_atom of (const char* word)
{
    t_atom atom{};
    atom_setsym (&atom, gensym (word));
    return atom;
}

/** A temporary list for one statement. */
struct List
{
    template <typename... Values>
    explicit List (Values... values) : items{ of (values)... }
    {}
    [[nodiscard]] Atoms atoms() const { return { static_cast<t_clong> (items.size()), items.data() }; }
    std::vector<t_atom> items;
};

constexpr double infinity = std::numeric_limits<double>::infinity();

}

TEST (Atoms, FitPatternsLooselyOrExactly)
{
    const List list (1, 2.5, "word");
    struct Row
    {
        const char* letters;
        bool loose, exact;
    };
    for (const auto& row :
         { Row{ "lfs", true, true }, Row{ "ifs", true, true }, Row{ "nns", true, true }, Row{ "l", true, false },
           Row{ "", true, false }, Row{ "lfss", false, false }, Row{ "ffs", false, false }, Row{ "lls", false, false },
           Row{ "lfn", false, false }, Row{ "sfs", false, false }, Row{ "xfs", false, false } }) {
        EXPECT_EQ (list.atoms().fit (row.letters), row.loose) << row.letters;
        EXPECT_EQ (list.atoms().fitExactly (row.letters), row.exact) << row.letters;
    }
    EXPECT_TRUE (Atoms().fitExactly (""));
    EXPECT_FALSE (Atoms().fit ("n"));
}

TEST (Atoms, TakeNoNumberThatTheStateCouldNotHold)
{
    for (const double value : { infinity, -infinity, std::nan (""), 1e300, -1e39 }) {
        const List list (value);
        EXPECT_FALSE (list.atoms().fit ("f")) << value;
        EXPECT_FALSE (list.atoms().fit ("n")) << value;
        EXPECT_FALSE (list.atoms().areNumbers()) << value;
    }
    EXPECT_TRUE (List (3.4e38).atoms().fit ("f"));
}

TEST (Atoms, ReadAnythingButThrowAtNothing)
{
    const List list (7, -2.9, "word", 1e300);
    EXPECT_EQ (list.atoms().number (0), 7.0f);
    EXPECT_EQ (list.atoms().number (1), -2.9f);
    EXPECT_EQ (list.atoms().number (2), 0.0f);
    EXPECT_EQ (list.atoms().number (99), 0.0f);
    EXPECT_EQ (list.atoms().integer (1), -2);
    EXPECT_EQ (list.atoms().integer (2), 0);
    EXPECT_EQ (list.atoms().integer (3), 0);
    EXPECT_EQ (list.atoms().symbol (2), gensym ("word"));
    EXPECT_EQ (list.atoms().symbol (0), gensym (""));
    EXPECT_EQ (list.atoms().from (2).size(), 2u);
    EXPECT_TRUE (list.atoms().from (9).empty());
    EXPECT_TRUE (Atoms (-3, list.items.data()).empty());
    EXPECT_TRUE (Atoms (3, nullptr).empty());
}

TEST (Atoms, AreWrittenBackOneBlankBehindEach)
{
    EXPECT_EQ (List (1.5, 2.0, -3, "word", 0.1, 100.0, 1e-9).atoms().text(), "1.5 2. -3 word 0.1 100. 0. ");
    EXPECT_EQ (Atoms().text(), "");
    t_atom object{};
    atom_setobj (&object, &object);
    EXPECT_EQ (Atoms (1, &object).text(), "");
}

TEST (MaxErrors, HaveNames)
{
    EXPECT_STREQ (orvanemax::errorText (0), "MAX_ERR_NONE");
    EXPECT_STREQ (orvanemax::errorText (-4), "MAX_ERR_OUT_OF_MEM");
    EXPECT_STREQ (orvanemax::errorText (-5), "unknown MAX_ERR");
    EXPECT_STREQ (orvanemax::errorText (1), "unknown MAX_ERR");
}
