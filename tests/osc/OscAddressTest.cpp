#include "osc/OrvaneDspOscAddress.h"
#include "support/core/Raised.h"

#include <gtest/gtest.h>
#include <vector>

using qel::OscAddress;

namespace
{

struct ParsedRow
{
    const char* given;
    const char* text;
    std::vector<const char*> parts;
    bool wildcards;
};

struct PairRow
{
    const char* address;
    const char* other;
    bool matches;
    bool startsWith;
};

constexpr PairRow pairRows[] = {
    { "/", "/", true, true },
    { "/", "/a", false, true },
    { "/a", "/", false, true },
    { "/a/b", "/a/b", true, true },
    { "/a/b", "/a/c", false, false },
    { "/a/b", "/a", false, true },
    { "/a", "/a/b", false, true }, // the shorter side decides how many parts count
    { "/axis/color", "/axis", false, true },
    { "/axis2", "/axis", false, false },
    { "/a//b", "/a/b/", true, true },
    { "/source/*/xyz", "/source/1/xyz", true, true },
    { "/source/*/xyz", "/source/1/2/xyz", false, false },
    { "/source/1/xyz", "/source/*/xyz", true, true }, // either side may be the pattern
    { "/source/1/xyz", "/source/*", false, true },
    { "/source/*", "/source/1/xyz", false, true },
    { "/source/*/xyz", "/source/1", false, false }, // a pattern with more parts than its text
    { "/a[!bc]d", "/axd", true, true },
    { "/a[!bc]d", "/abd", false, false },
    { "/{foo,bar}/x", "/bar/x", true, true },
    { "/*", "/", false, false },
    { "/*", "/?*", true, true },    // two patterns: the other one is matched against this one's text
    { "/?b", "/[?]b", true, true }, // as text of another pattern, a wildcard is an ordinary character
    { "/[?]b", "/?b", false, false },
};

}

TEST (OscAddress, IsSplitIntoPartsAndWrittenInOneForm)
{
    const ParsedRow rows[] = {
        { "", "/", {}, false },
        { "/", "/", {}, false },
        { "//", "/", {}, false },
        { "gain", "/gain", { "gain" }, false },
        { "/a/b", "/a/b", { "a", "b" }, false },
        { "a/b", "/a/b", { "a", "b" }, false },
        { "/a//b/", "/a/b", { "a", "b" }, false },
        { "/s/*", "/s/*", { "s", "*" }, true },
        { "/s/]", "/s/]", { "s", "]" }, true },
        { "/!\"$%&'()+-.:;<=>@\\^_`|~", "/!\"$%&'()+-.:;<=>@\\^_`|~", { "!\"$%&'()+-.:;<=>@\\^_`|~" }, false },
    };
    for (const auto& row : rows) {
        const OscAddress address{ qel::String (row.given) };
        EXPECT_EQ (address.text(), row.text) << row.given;
        EXPECT_EQ (address.hasWildcards(), row.wildcards) << row.given;
        ASSERT_EQ (address.parts().size(), row.parts.size()) << row.given;
        for (std::size_t i = 0; i < row.parts.size(); ++i)
            EXPECT_EQ (address.parts()[i], row.parts[i]) << row.given;
    }
    EXPECT_EQ (OscAddress().text(), "/");
}

TEST (OscAddress, RefusesTheCharactersOfItsKind)
{
    struct Row
    {
        const char* text;
        bool pattern, literal;
    };
    constexpr Row rows[] = {
        { "/a b", false, false },      { "/a#", false, false },   { "/\t", false, false }, { "/\x7f", false, false },
        { "/\xc3\xa9", false, false }, { "/\xff", false, false }, { "/*", true, false },   { "/a?", true, false },
        { "/[a]", true, false },       { "/{a,b}", true, false }, { "/a,b", true, false }, { "/a-b!c", true, true },
    };
    const std::string complaint = "OSC format error: encountered characters not allowed in address string : ";
    const auto outcome = [] (const char* text, OscAddress::Kind kind) {
        return raised ([&] { EXPECT_EQ (OscAddress (text, kind).text(), text); });
    };
    for (const auto& row : rows) {
        EXPECT_EQ (outcome (row.text, OscAddress::Kind::pattern), row.pattern ? "nothing" : complaint + row.text);
        EXPECT_EQ (outcome (row.text, OscAddress::Kind::literal), row.literal ? "nothing" : complaint + row.text);
    }
    EXPECT_THROW (OscAddress (qel::String (std::string ("/a\0b", 4))), qel::Exception);
}

TEST (OscAddress, MatchesPartByPart)
{
    for (const auto& row : pairRows) {
        const OscAddress address{ qel::String (row.address) }, other{ qel::String (row.other) };
        EXPECT_EQ (address.matches (other), row.matches) << row.address << " with " << row.other;
        EXPECT_EQ (address.startsWith (other), row.startsWith) << row.address << " with " << row.other;
    }
}
