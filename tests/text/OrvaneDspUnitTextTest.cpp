#include "text/OrvaneDspUnitText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

struct Row
{
    double value;
    const char* text;
};

}

TEST (UnitText, TellsGainsWithTheirSign)
{
    const Row rows[] = { { 0, "0 dB" },         { 3, "+3 dB" },       { -30, "-30 dB" },
                         { 0.5, "+0.5 dB" },    { -0.25, "-0.3 dB" }, { -0.04, "-0.0 dB" },
                         { 29.96, "+30.0 dB" }, { -0.0, "0 dB" },     { -60, "-60 dB" } };
    for (const auto& row : rows)
        EXPECT_EQ (qel::gainText (row.value, true), row.text) << row.value;
    EXPECT_EQ (qel::gainText (3, false), "+3");
}

TEST (UnitText, TellsFrequenciesInTheUnitThatSuits)
{
    const Row rows[] = { { 0, "0 Hz" },       { 250.9, "250 Hz" },     { 999.99, "999 Hz" },  { 1000, "1 kHz" },
                         { 1500, "1500 Hz" }, { 4000, "4 kHz" },       { 44099, "44099 Hz" }, { 44100, "44.1 kHz" },
                         { 48000, "48 kHz" }, { 999999, "999999 Hz" }, { 1e6, "1.00 MHz" },   { 1.5e6, "1.50 MHz" },
                         { 1e9, "1.00 GHz" }, { 2.345e9, "2.35 GHz" }, { -5.5, "-5 Hz" } };
    for (const auto& row : rows)
        EXPECT_EQ (qel::frequencyText (row.value, true), row.text) << row.value;
    EXPECT_EQ (qel::frequencyText (2000, false), "2");
}

TEST (UnitText, SurvivesNumbersThatAreNone)
{
    EXPECT_EQ (qel::gainText (infinity, true), "+inf dB");
    EXPECT_EQ (qel::gainText (-infinity, true), "-inf dB");
    EXPECT_EQ (qel::gainText (1e300, true), "+1e+300 dB");
    EXPECT_EQ (qel::frequencyText (-1e300, true), "-1e+300 Hz");
    EXPECT_EQ (qel::frequencyText (infinity, true), "inf GHz");
    EXPECT_EQ (qel::frequencyText (std::nan (""), true), "nan Hz");
}
