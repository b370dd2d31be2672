#include "text/OrvaneDspXmlElement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <locale>
#include <random>

namespace
{

using qel::XmlElement;

/** German number format: 0,5 and 1.000. */
struct GermanNumbers : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class XmlNumbers : public testing::Test
{
protected:
    ~XmlNumbers() override { std::locale::global (std::locale::classic()); }

    std::string written (double value)
    {
        element.setAttribute ("n", value);
        return element.textAttribute ("n").str();
    }
    double readBack (double value)
    {
        element.setAttribute ("n", value);
        return element.doubleAttribute ("n");
    }

    XmlElement element{ "e" };
};

template <typename To, typename From>
To sameBits (From from)
{
    static_assert (sizeof (To) == sizeof (From));
    To to;
    std::memcpy (&to, &from, sizeof to);
    return to;
}

TEST_F (XmlNumbers, AreWrittenShortAndWithAPointInAnyLocale)
{
    std::locale::global (std::locale (std::locale::classic(), new GermanNumbers));
    const std::pair<double, const char*> rows[] = {
        { 0.0, "0" },       { -0.0, "-0" },         { 0.1, "0.1" },         { double{ 0.1F }, "0.1" },
        { -12.5, "-12.5" }, { 1234567, "1234567" }, { 1e-7, "1e-07" },      { 1.0 / 3, "0.3333333333333333" },
        { 2e7, "2e+07" },   { 0.000001, "1e-06" },  { 0.00002, "0.00002" },
    };
    for (const auto& [value, text] : rows) {
        EXPECT_EQ (written (value), text);
        EXPECT_EQ (static_cast<float> (readBack (value)), static_cast<float> (value)) << text;
    }
}

TEST_F (XmlNumbers, OfSinglePrecisionComeBackBitForBit)
{
    std::mt19937 random (1);
    for (int i = 0; i < 300000; ++i) {
        const auto bits = static_cast<std::uint32_t> (random());
        const auto value = sameBits<float> (bits);
        if (std::isfinite (value)) {
            ASSERT_EQ (sameBits<std::uint32_t> (static_cast<float> (readBack (double{ value }))), bits);
        }
    }
}

TEST_F (XmlNumbers, OfSinglePrecisionSurviveBeingRoundedTwice)
{
    const float value = 7.038531e-26F; // the double nearest to its shortest digits is halfway to the next float
    EXPECT_EQ (static_cast<float> (readBack (double{ value })), value);
}

TEST_F (XmlNumbers, OfDoublePrecisionComeBackBitForBit)
{
    std::mt19937_64 random (2);
    for (int i = 0; i < 300000; ++i) {
        const std::uint64_t bits = random();
        const auto value = sameBits<double> (bits);
        if (std::isfinite (value)) {
            ASSERT_EQ (sameBits<std::uint64_t> (readBack (value)), bits);
        }
    }
    using Limits = std::numeric_limits<double>;
    for (const double value : { Limits::max(), Limits::min(), Limits::denorm_min(), Limits::lowest() })
        EXPECT_EQ (readBack (value), value);
}

}
