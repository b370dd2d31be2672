#include "max/OrvanemaxSymbols.h"

#include <gmock/gmock.h>

#include <cstring>
#include <set>
#include <string>

namespace
{

constexpr std::size_t numberOfWords = sizeof (t_orvanemax_symbols) / sizeof (t_symbol*);

t_symbol* wordAt (std::size_t index)
{
    t_symbol* word = nullptr;
    std::memcpy (&word, reinterpret_cast<const char*> (&orvanemax::symbols()) + index * sizeof word, sizeof word);
    return word;
}

}

TEST (Symbols, Are414DifferentInternedWords)
{
    orvanemax::buildSymbols();
    ASSERT_EQ (numberOfWords, 414u);
    std::set<t_symbol*> words;
    for (std::size_t i = 0; i < numberOfWords; ++i) {
        ASSERT_NE (wordAt (i), nullptr) << i;
        EXPECT_EQ (wordAt (i), gensym (wordAt (i)->s_name)) << i;
        words.insert (wordAt (i));
    }
    EXPECT_EQ (words.size(), 414u);
}

TEST (Symbols, StandInTheOrderOfTheTable)
{
    orvanemax::buildSymbols();
    struct Place
    {
        std::size_t index;
        const char* word;
    };
    for (const auto& place : { Place{ 0, "active" }, Place{ 1, "add" }, Place{ 2, "air" }, Place{ 47, "," },
                               Place{ 58, "default" }, Place{ 82, "" }, Place{ 413, "annotation_name" } })
        EXPECT_STREQ (wordAt (place.index)->s_name, place.word) << place.index;
}

TEST (Symbols, AreBuiltOnce)
{
    orvanemax::buildSymbols();
    const auto* before = &orvanemax::symbols();
    orvanemax::buildSymbols();
    EXPECT_EQ (&orvanemax::symbols(), before);
    EXPECT_STREQ (orvanemax::dumpout()->s_name, "dumpout");
    EXPECT_STREQ (orvanemax::modified()->s_name, "modified");
}
