#include "text/OrvaneDspString.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

using qel::String;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

/** Sets a locale with a decimal comma for its lifetime, if the machine has one. */
class CommaLocale : public testing::Test
{
protected:
    CommaLocale()
    {
        for (const char* name : { "de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "fr_FR", "German_Germany" })
            if (std::setlocale (LC_NUMERIC, name) != nullptr)
                break;
    }
    ~CommaLocale() override { std::setlocale (LC_NUMERIC, "C"); }
};

}

TEST (StringFromIntegers, WritesTheWholeRange)
{
    EXPECT_EQ (String (0), "0");
    EXPECT_EQ (String (std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ (String (std::numeric_limits<std::uint32_t>::max()), "4294967295");
    EXPECT_EQ (String (std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ (String (std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ (String (std::size_t{ 7 }), "7");
}

TEST (StringFromFloats, TruncatesHalfAStepMoreThanTheMagnitude)
{
    struct Row
    {
        double value;
        int decimals;
        const char* text;
    };
    const Row rows[] = {
        { 0.5, 2, "0.50" },
        { -0.004, 2, "-0.00" },
        { 0, 1, "0.0" },
        { 1.25, 1, "1.3" },
        { -1.25, 1, "-1.3" },
        { 0.999, 2, "1.00" },
        { 0.000001, 6, "0.000001" },
        { 123456.75, 3, "123456.750" },
        { 9.9e19, 1, "99000000000000000000.0" }, // beyond 64 bits
        { -1e15, 6, "-1000000000000000.000000" },
        { 1e20, 2, "1e+20" },
        { 1234567, 0, "1.23457e+06" },
        { 30, 0, "30" },
        { 0.1, 0, "0.1" },
        { 0.123456789, 7, "0.1234568" },
        { 0.5, -3, "0.5" },
        { 0.1, 1000, "0.10000000000000001" },
        { infinity, 2, "inf" },
        { -infinity, 3, "-inf" },
        { std::nan (""), 2, "nan" },
    };
    for (const auto& row : rows)
        EXPECT_EQ (String (row.value, row.decimals), row.text) << row.value << " with " << row.decimals;
}

TEST_F (CommaLocale, LeavesNumbersAlone)
{
    EXPECT_EQ (String (1.5, 2), "1.50");
    EXPECT_EQ (String (1.5, 0), "1.5");
    EXPECT_EQ (String::formatted ("%.3f", 2.5), "2.500");
    EXPECT_EQ (String::formatted ("a, b: %08.2e, c", 1234.5), "a, b: 1.23e+03, c");
    EXPECT_EQ (String ("1.5").toDouble(), 1.5);
    EXPECT_EQ (String ("1,5").toDouble(), 1.0);
}

TEST (StringFormatted, AppliesOneConversion)
{
    EXPECT_EQ (String::formatted ("%02d", 7), "07");
    EXPECT_EQ (String::formatted ("[%-4d]", -7), "[-7  ]");
    EXPECT_EQ (String::formatted ("%X", -1), "FFFFFFFF");
    EXPECT_EQ (String::formatted ("%x", 0xbeef), "beef");
    EXPECT_EQ (String::formatted ("%lld items", 3), "3 items") << "the size is known already";
    EXPECT_EQ (String::formatted ("%+.1f dB", 3.25), "+3.2 dB");
    EXPECT_EQ (String::formatted ("%5.1f%%", 50.0), " 50.0%");
    EXPECT_EQ (String::formatted ("100%% of %d", 3), "100% of 3");
}

TEST (StringFormatted, PrintsNoNumberWhereTheFormatHasNoPlaceForIt)
{
    EXPECT_EQ (String::formatted ("%s|", 3), "|");
    EXPECT_EQ (String::formatted ("%f", 3), "");
    EXPECT_EQ (String::formatted ("%d", 3.0), "");
    EXPECT_EQ (String::formatted ("plain", 3), "plain");
    EXPECT_EQ (String::formatted ("%", 3), "");
    EXPECT_EQ (String::formatted ("", 3.0), "");
}

TEST (StringToNumbers, ReadsWhatStandsAtTheBeginning)
{
    struct Row
    {
        const char* text;
        int integer;
        double real;
    };
    const Row rows[] = {
        { "12", 12, 12 },
        { " \t\n-12.5e1x", -12, -125 },
        { "+7", 7, 7 },
        { "+-7", 0, 0 },
        { "- 7", 0, 0 },
        { "", 0, 0 },
        { "room", 0, 0 },
        { ".5", 0, 0.5 },
        { "2147483648", 2147483647, 2147483648.0 },
        { "-99999999999", -2147483647 - 1, -99999999999.0 },
        { "1e", 1, 1 },
        { "1e400", 1, infinity },
        { "-1e400", -1, -infinity },
        { "1e-400", 1, 0 },
        { "1e9223372036854775807", 1, infinity },
        { "1e99999999999999999999", 1, infinity },
        { "1e-99999999999999999999", 1, 0 },
    };
    for (const auto& row : rows) {
        EXPECT_EQ (String (row.text).toInt(), row.integer) << row.text;
        EXPECT_EQ (String (row.text).toDouble(), row.real) << row.text;
    }
    const String manyDigits (std::string (400, '7')), manyZeros ("-0." + std::string (400, '0') + "7");
    EXPECT_EQ (manyDigits.toDouble(), infinity);
    EXPECT_EQ (manyZeros.toDouble(), 0);
    EXPECT_TRUE (std::signbit (manyZeros.toDouble()));
    // The exponent's sign alone does not determine the size of a number with many digits.
    EXPECT_EQ ((manyDigits + "e-5").toDouble(), infinity);
    EXPECT_EQ ((manyZeros + "e+5").toDouble(), 0);
}

TEST (StringHex, GoesBothWays)
{
    EXPECT_EQ (String::hex (0), "0");
    EXPECT_EQ (String::hex (0xdeadbeef0123), "deadbeef0123");
    EXPECT_EQ (String::hex (~std::uint64_t{ 0 }), "ffffffffffffffff");
    for (int value = 0; value < 256; ++value) {
        const String lower = String::formatted ("%02x", value), upper = String::formatted ("%02X", value);
        EXPECT_EQ (String::hexByte (lower[0], lower[1]), value);
        EXPECT_EQ (String::hexByte (upper[0], upper[1]), value);
    }
    for (const char bad : { 'g', 'G', '/', ':', '@', '`', '\0', '\xff' }) {
        EXPECT_EQ (String::hexDigit (bad), -1);
        EXPECT_EQ (String::hexByte ('1', bad), -1);
        EXPECT_EQ (String::hexByte (bad, '1'), -1);
    }
}

TEST (StringFromBool, IsTrueForOneAlone)
{
    EXPECT_EQ (String::fromBool (true), "true");
    EXPECT_EQ (String::fromBool (false), "false");
    EXPECT_EQ (String::fromBool (2), "false");
}
