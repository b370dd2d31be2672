#include "files/OrvaneDspUniqueName.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

struct Row
{
    const char* base;
    bool parentheses, parenthesesAfterDigit;
    std::set<std::string> taken;
    const char* expected;
};

TEST (UniqueName, CountsUpUntilTheNameIsFree)
{
    const Row rows[] = {
        { "take", false, false, {}, "take.txt" },
        { "take", false, false, { "take.txt" }, "take2.txt" },
        { "take", false, false, { "take.txt", "take2.txt", "take3.txt" }, "take4.txt" },
        { "take", true, false, { "take.txt" }, "take(2).txt" },
        { "take", false, true, { "take.txt" }, "take2.txt" },
        { "take2", false, false, { "take2.txt" }, "take22.txt" },
        { "take2", false, true, { "take2.txt" }, "take2(2).txt" },
        { "take(2)", false, false, { "take(2).txt" }, "take(3).txt" },
        { "take(9)", false, false, { "take(9).txt", "take(10).txt" }, "take(11).txt" },
        { "(2)", false, false, { "(2).txt" }, "(2)2.txt" },
        { "take(b)", false, false, { "take(b).txt" }, "take(b)2.txt" },
        { "take(2", false, false, { "take(2.txt" }, "take(22.txt" },
        { "take(99999999999999999999)",
          false,
          false,
          { "take(99999999999999999999).txt" },
          "take(99999999999999999999)2.txt" },
        { "", false, false, { ".txt" }, "2.txt" },
    };
    for (const auto& row : rows) {
        const auto isTaken = [&row] (const qel::String& name) { return row.taken.count (name.str()) != 0; };
        EXPECT_EQ (qel::uniqueName (row.base, ".txt", { row.parentheses, row.parenthesesAfterDigit }, isTaken).str(),
                   row.expected)
            << row.base;
    }
}

}
