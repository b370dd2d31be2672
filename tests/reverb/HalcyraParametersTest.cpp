#include "reverb/HalcyraParameters.h"
#include "reverb/HalcyraLimits.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

namespace
{

namespace parameter = halcyra::parameter;

TEST (HalcyraParameters, EachRowStandsAtItsNumberAndHasWordsOfItsOwn)
{
    std::set<std::string> words;
    for (std::size_t i = 0; i < halcyra::parameterTable.size(); ++i) {
        const auto& row = halcyra::parameterTable[i];
        EXPECT_EQ (row.number, static_cast<int> (i));
        EXPECT_NE (row.value == nullptr, row.flag == nullptr) << i;
        EXPECT_TRUE (words.insert (std::string (row.selector) + " " + row.key).second) << row.key;
    }
    EXPECT_EQ (halcyra::parameterRow (-1), nullptr);
    EXPECT_EQ (halcyra::parameterRow (parameter::count), nullptr);
}

TEST (HalcyraParameters, DefaultsLieWithinTheRangesAndMostDoubleClicksLeadToThem)
{
    for (const auto& row : halcyra::parameterTable) {
        const double value = static_cast<double> (halcyra::valueOf ({}, row));
        EXPECT_GE (value, row.range.lowest) << row.key;
        EXPECT_LE (value, row.range.highest) << row.key;
        const double clicked = row.number == parameter::airFrequency ? 10000 : row.doubleClick();
        EXPECT_NEAR (value, clicked, 1e-5) << row.key;
    }
}

TEST (HalcyraParameters, AFilterIsClippedFieldByField)
{
    EXPECT_EQ (halcyra::clipped ({ -300, -31, 31, 5, 19, 20001 }), (HLShelfParameters{ -200, -30, 30, 5, 20, 20000 }));
    EXPECT_FALSE (halcyra::isFinite ({ 0, 0, std::numeric_limits<float>::quiet_NaN(), 0, 250, 4000 }));
    EXPECT_FALSE (halcyra::isFinite ({ 0, 0, 0, 0, 250, std::numeric_limits<float>::infinity() }));
    EXPECT_TRUE (halcyra::isFinite ({}));
}

struct LimitRow
{
    HalcyraReverbParameter number;
    float wish;
    float comesTo;
};

TEST (HalcyraLimits, AWishGoesAsFarAsItsRangeAndItsNeighboursLet)
{
    const halcyra::StageTimes present{ 20, 40, 50, 100 };
    for (const auto& row : { LimitRow{ parameter::gain, -31, -30 },
                             { parameter::gain, 31, 30 },
                             { parameter::tr0, 0, 0.1f },
                             { parameter::tr0, 31, 30 },
                             { parameter::trh, 5, 1 },
                             { parameter::fh, 1, 20 },
                             { parameter::airFrequency, 1e6f, 20000 },
                             { parameter::earlyStart, 0, 1 },
                             { parameter::earlyStart, 45, 40 },
                             { parameter::earlyEnd, 5, 20 },
                             { parameter::earlyEnd, 110, 100 },
                             { parameter::earlyDistr, 0, 0.1f },
                             { parameter::earlyShape, 2, 1 },
                             { parameter::earlyWidth, 0, 10 },
                             { parameter::clusterStart, 5, 20 },
                             { parameter::clusterStart, 200, 100 },
                             { parameter::clusterEnd, 5, 50 },
                             { parameter::clusterEnd, 400, 300 },
                             { parameter::reverbStart, 5, 50 },
                             { parameter::reverbStart, 900, 500 },
                             { parameter::modalDensity, 5, 4 } })
        EXPECT_EQ (halcyra::limited (*halcyra::parameterRow (row.number), row.wish, present), row.comesTo)
            << row.number << " to " << row.wish;
}

TEST (HalcyraLimits, TheLastWordOfARuleWinsWhereItsLimitsCross)
{
    const auto& clusterEnd = *halcyra::parameterRow (parameter::clusterEnd);
    EXPECT_EQ (halcyra::limited (clusterEnd, 10, { 1, 2, 310, 300 }), 310) << "the cluster's start beats 300";
    const auto& earlyStart = *halcyra::parameterRow (parameter::earlyStart);
    EXPECT_EQ (halcyra::limited (earlyStart, 10, { 1, 0.5f, 50, 60 }), 0.5f) << "the early end beats 1";
}

}
