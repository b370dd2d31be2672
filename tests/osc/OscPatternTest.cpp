#include "osc/OrvaneDspOscPattern.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

using qel::matchOscPattern;

namespace
{

struct MatchRow
{
    const char* pattern;
    const char* text;
    bool matches;
};

constexpr MatchRow matchRows[] = {
    // ordinary characters
    { "", "", true },
    { "", "a", false },
    { "abc", "abc", true },
    { "abc", "ab", false },
    { "ab", "abc", false },
    { "]}-!,", "]}-!,", true }, // special only within a class or set
    // *
    { "*", "", true },
    { "*", "anything", true },
    { "a*c", "ac", true },
    { "a*c", "abcbc", true },
    { "a*c", "abcb", false },
    { "**", "a", true },
    { "**", "", false }, // at the end of the text only a final * matches
    { "a**", "a", false },
    { "a*{}", "a", false },
    { "a*[]", "a", false },
    { "*[]", "a", true }, // but a star may walk to the end
    { "*{}", "a", true },
    { "a*[]", "ab", true },
    { "*b*", "abc", true },
    { "*b*", "ab", true },
    // ?
    { "?", "a", true },
    { "?", "", false },
    { "a?c", "abc", true },
    { "a?", "a", false },
    { "??", "\xc3\xa9\xe2\x82\xac", true }, // é€: two characters of two and three bytes
    { "?", "\xf0\x9f\x8e\xb9", true },
    { "??", "\xff\xfe", true },        // invalid UTF-8 bytes match themselves
    { "?", "\xe2\x82", false },        // a truncated character counts per byte
    { "\x80", "\xed\xb2\x80", false }, // a surrogate's three bytes are not one character
    { "A", "\xe0\x81\x81", false },    // nor is a longer way to write one
    // classes
    { "a[bc]d", "abd", true },
    { "a[bc]d", "aed", false },
    { "a[!bc]d", "axd", true },
    { "a[!bc]d", "abd", false },
    { "[abc]", "", false },
    { "[!a]", "", false },
    { "[a!]", "!", true },  // no inversion after a member
    { "[!!]", "!", false }, // only the first inverts
    { "[!!]", "a", true },
    { "x[]y", "xy", true }, // an empty class matches empty text
    { "x[!]y", "xy", true },
    { "x[!]y", "xay", false },
    { "[abc", "a", false },
    { "[*?{]", "*", true },
    { "[*?{]", "x", false },
    { "[\xc3\xa0-\xc3\xbf]", "\xc3\xa9", true }, // à to ÿ holds é
    // ranges
    { "[a-c]", "b", true },
    { "[a-c]", "c", true },
    { "[a-c]", "d", false },
    { "[0-9a-f]", "e", true },
    { "[c-a]", "c", true }, // a descending range is empty
    { "[c-a]", "b", false },
    { "[c-a]", "a", false },
    { "[a-c-e]", "d", true },
    { "[!a-c]", "d", true },
    { "[!a-c]", "b", false },
    { "[a-]]", "-", true }, // after a hyphen the bracket is part of the range
    { "[a-]]", "a", true },
    { "[a-]]", "]", false },
    { "[a-]", "a", false },
    { "[a-]b]", "b", true },
    { "[-a]", "-", false },
    { "[!-a]", "b", false },
    { "[a-,]", "a", false },
    { "[a-{]", "a", false },
    { "[a-}]", "a", false },
    { "[a-", "a", false },
    { "[a--]", "a", true },
    // sets
    { "{foo,bar}", "bar", true },
    { "{foo,bar}", "foobar", false },
    { "{foo,bar}x", "foox", true },
    { "{a,ab}c", "abc", true }, // a failed first alternative does not exclude the second
    { "{ab,a}bc", "abc", true },
    { "x{}y", "xy", true },
    { "x{}y", "xay", false },
    { "x{a,}y", "xy", true },
    { "{foo", "foo", false },
    { "{a*,b}", "a*", true }, // no wildcards in alternatives
    { "{a*,b}", "axx", false },
    { "{[a],b}", "[a]", true },
    { "{\xc3\xa9,e}t", "\xc3\xa9t", true },
    // together
    { "s*[0-9]{,bis}", "source12bis", true },
    { "s*[0-9]{,bis}", "source12ter", false },
};

/** Tries every possibility in turn: exponential, but obviously correct. */
bool matchByTrying (const std::string& pattern, const std::string& text);

bool matchSetByTrying (const std::string& pattern, const std::string& text)
{
    const auto end = pattern.find ('}');
    if (end == std::string::npos)
        return false;
    std::string rest = pattern.substr (1, end - 1) + ",";
    for (std::size_t comma; (comma = rest.find (',')) != std::string::npos; rest.erase (0, comma + 1))
        if (text.compare (0, comma, rest, 0, comma) == 0 &&
            matchByTrying (pattern.substr (end + 1), text.substr (comma)))
            return true;
    return false;
}

bool matchClassByTrying (const std::string& pattern, const std::string& text)
{
    std::string members;
    bool inverted = false;
    std::size_t i = 1;
    for (; i < pattern.size() && pattern[i] != ']'; ++i) {
        if (pattern[i] == '!' && members.empty() && ! inverted)
            inverted = true;
        else if (pattern[i] != '-')
            members += pattern[i];
        else if (++i == pattern.size() || members.empty() || std::string (",{}").find (pattern[i]) != std::string::npos)
            return false;
        else if (pattern[i] == ']')
            members += '-';
        else
            for (char c = members.back(); c < pattern[i];)
                members += ++c;
    }
    if (i == pattern.size())
        return false;
    const auto rest = pattern.substr (i + 1);
    if (members.empty())
        return matchByTrying (rest, text);
    return ! text.empty() && (members.find (text[0]) != std::string::npos) != inverted &&
           matchByTrying (rest, text.substr (1));
}

bool matchByTrying (const std::string& pattern, const std::string& text)
{
    if (pattern.empty())
        return text.empty();
    if (pattern[0] == '*') {
        bool matches = text.empty() && pattern.size() == 1;
        for (std::size_t taken = 0; ! text.empty() && taken <= text.size(); ++taken)
            matches = matches || matchByTrying (pattern.substr (1), text.substr (taken));
        return matches;
    }
    if (pattern[0] == '[')
        return matchClassByTrying (pattern, text);
    if (pattern[0] == '{')
        return matchSetByTrying (pattern, text);
    return ! text.empty() && (pattern[0] == '?' || pattern[0] == text[0]) &&
           matchByTrying (pattern.substr (1), text.substr (1));
}

std::string randomText (std::mt19937& random, const std::string& letters, unsigned longest)
{
    std::string text;
    for (auto length = random() % (longest + 1); length > 0; --length)
        text += letters[random() % letters.size()];
    return text;
}

}

TEST (OscPattern, HoldsEachConstructToItsRule)
{
    for (const auto& row : matchRows)
        EXPECT_EQ (matchOscPattern (row.pattern, row.text), row.matches) << row.pattern << " on " << row.text;
}

TEST (OscPattern, FindsWhatTryingEachWayInTurnFinds)
{
    std::mt19937 random (7);
    int matches = 0;
    for (int i = 0; i < 200'000; ++i) {
        const auto pattern = randomText (random, "aab*?[]{},-!", 9), text = randomText (random, "aab-!]", 5);
        const bool expected = matchByTrying (pattern, text);
        matches += expected;
        ASSERT_EQ (matchOscPattern (pattern, text), expected) << pattern << " on " << text;
    }
    EXPECT_GT (matches, 2'000);
}

TEST (OscPattern, TakesNoLongerForManyStarsThanTheirNumberTimesTheText)
{
    const std::string text (100'000, 'a');
    EXPECT_FALSE (matchOscPattern ("*a*a*a*a*a*a*a*b", text));
    EXPECT_TRUE (matchOscPattern ("*a*a*a*a*a*a*a*b", text + "b"));

    std::string sets, stars;
    for (int i = 0; i < 50; ++i) {
        sets += "{a,aa,aaa}";
        stars += "*[ab]";
    }
    EXPECT_FALSE (matchOscPattern (sets + "*b", text));
    EXPECT_FALSE (matchOscPattern (stars + "*b", text));
    EXPECT_TRUE (matchOscPattern (sets, std::string (100, 'a')));
}
