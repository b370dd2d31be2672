#include "common/OrvaneDspTime.h"

#include <gtest/gtest.h>

#include <limits>

using qel::Time;

TEST (Time, CountsTheDaysOutsideOfTheSystemsYearsItself)
{
    EXPECT_EQ (Time (1970, 0, 1, 0, 0, 1, 5).milliseconds(), 1005);
    EXPECT_EQ (Time (1970, 0, 2, 0, 0).milliseconds(), 86'400'000);
    EXPECT_EQ (Time (2038, 0, 1, 0, 0).milliseconds(), 2'145'916'800'000);
    EXPECT_EQ (Time (2100, 2, 1, 0, 0).milliseconds() - Time (2100, 1, 28, 0, 0).milliseconds(), 86'400'000)
        << "2100 has no leap day";
    EXPECT_EQ (Time (2037, 12, 1, 0, 0).toText ({ true, false }), "01/01/2038") << "months run over";
    EXPECT_EQ (Time (2039, 12, 1, 0, 0).milliseconds(), Time (2040, 0, 1, 0, 0).milliseconds());
}

TEST (Time, IsNeverNegative)
{
    const int lowest = std::numeric_limits<int>::min(), highest = std::numeric_limits<int>::max();
    EXPECT_EQ (Time (1969, 11, 31, 23, 59).milliseconds(), 0);
    EXPECT_EQ (Time (lowest, lowest, lowest, lowest, lowest, lowest, lowest).milliseconds(), 0);
    EXPECT_GT (Time (highest, highest, highest, highest, highest, highest, highest).milliseconds(), 0);
    EXPECT_EQ (Time (-1).toText ({ true, true }), Time (0).toText ({ true, true }));
}

TEST (Time, IsWrittenInTheFormsThatAreAskedFor)
{
    struct Row
    {
        Time::Parts parts;
        const char* text;
    };
    //                 date   time   secs   day    file
    const Row rows[] = { { { true, true, true, true, false }, "Sat - 21/11/2026 - 15h04m09s" },
                         { { true, true, false, false, false }, "21/11/2026 - 15:04" },
                         { { true, false, true, false, false }, "21/11/2026" },
                         { { false, true, false, false, false }, "15:04" },
                         { { false, true, true, false, true }, "15h04m09s" },
                         { { true, true, true, true, true }, "Sat_21_11_2026_15h04m09s" },
                         { { false, false, true, true, false }, "Sat - " },
                         { { false, false, true, false, false }, "" } };
    for (const auto& row : rows)
        EXPECT_EQ (Time (2026, 10, 21, 15, 4, 9, 120).toText (row.parts), row.text);
    EXPECT_EQ (Time (2100, 2, 1, 12, 0).toText ({ true, false, true, true, false }), "Mon - 01/03/2100");
}

TEST (Time, ComesBackFromItsFieldsInEveryEra)
{
    for (const int year : { 1970, 1971, 1999, 2000, 2024, 2037, 2038, 2100, 2400, 9999 })
        for (const int month : { 0, 1, 2, 11 }) {
            const auto text = Time (year, month, 28, 12, 30, 59).toText ({});
            const auto expected = "28/" + qel::String::formatted ("%02d", month + 1) + "/" + qel::String (year);
            EXPECT_EQ (text, expected + " - 12h30m59s");
        }
}
