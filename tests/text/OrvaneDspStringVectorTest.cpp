#include "text/OrvaneDspStringVector.h"

#include <gmock/gmock.h>

using qel::String;
using qel::Vector;

TEST (StringVector, SplitsAtEverySeparator)
{
    struct Row
    {
        const char* text;
        Vector<String> all, full;
    };
    const Row rows[] = {
        { "", {}, {} },
        { "a", { "a" }, { "a" } },
        { "a/b", { "a", "b" }, { "a", "b" } },
        { "/a//b/", { "", "a", "", "b", "" }, { "a", "b" } },
        { "/", { "", "" }, {} },
    };
    for (const auto& row : rows) {
        EXPECT_EQ (qel::split (row.text, '/', true), row.all) << row.text;
        EXPECT_EQ (qel::split (row.text, '/', false), row.full) << row.text;
    }
}

TEST (StringVector, FindsTheFirstMatch)
{
    const Vector<String> texts{ "Direct", "room", "ROOM", "early" };
    EXPECT_EQ (qel::indexOf (texts, "ROOM"), 2);
    EXPECT_EQ (qel::indexOf (texts, "ROOM", true), 1);
    EXPECT_EQ (qel::indexOf (texts, "direct"), -1);
    EXPECT_TRUE (qel::isContained (texts, "direct", true));
    EXPECT_FALSE (qel::isContained (texts, "cluster", true));
    EXPECT_EQ (qel::indexOf (qel::emptyStrings(), ""), -1);
}
