#include "reverb/Delgen.h"

#include "math/OrvaneDspRandom.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <vector>

using Ambrel::Delgen;
using qel::OSCMessage;

namespace
{

using Delays = std::vector<float>;

struct State
{
    int numdelays;
    float min, max, sum, distr;
};

State stateOf (Delgen& generator)
{
    const char* const order[] = { "/numdelays", "/min", "/max", "/sum", "/distr" };
    const auto bundle = generator.getOscState();
    EXPECT_EQ (bundle.size(), std::size (order));
    for (std::size_t i = 0; i < std::size (order); ++i)
        EXPECT_EQ (bundle[i].message().address().text(), order[i]);
    const auto number = [&] (std::size_t i) { return bundle[i].message()[0].asFloat(); };
    EXPECT_TRUE (bundle[0].message().has ('i'));
    return { int (number (0)), number (1), number (2), number (3), number (4) };
}

Delays delaysOf (const Delgen& generator) { return { generator.getDelays().begin(), generator.getDelays().end() }; }

void expectNear (const Delays& actual, const Delays& expected, const char* what)
{
    ASSERT_EQ (actual.size(), expected.size()) << what;
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_NEAR (actual[i], expected[i], 1e-3) << what << ", delay " << i;
}

OSCMessage messageOf (const char* address, const std::vector<double>& numbers)
{
    OSCMessage message{ qel::String (address) };
    for (const double number : numbers)
        message.add (number);
    return message;
}

}

TEST (Delgen, KeepsTheSpacingOfItsNumbersAtTheDistributionOfTheirMean)
{
    const Delays rows[] = {
        { 10, 45 }, // the numbers 2 to 37, from 10 ms on
        { 10, 31, 45 },
        { 10, 19, 31, 45 },
        { 10, 19, 31, 37, 45 },
        { 10, 15, 19, 26, 31, 37, 45 }, // seven of the first eight numbers: all but 5, which has the last rank
        { 10, 13, 15, 19, 26, 31, 37, 45 },
        { 10, 13, 15, 19, 26, 31, 37, 45, 54 },
        { 10, 13, 15, 19, 26, 31, 37, 45, 54, 67, 79, 90, 105, 121, 135, 153 },
    };
    for (const auto& delays : rows) {
        const auto count = static_cast<std::uint32_t> (delays.size());
        const float sum = std::accumulate (delays.begin(), delays.end(), 0.0f), span = delays.back() - 10;
        const float mean = (sum / float (count) - 10) / span;
        Delgen generator (count, 1, 2, 0.5f);
        generator.setMinMax (10, delays.back(), mean);
        expectNear (delaysOf (generator), delays, "by range");
        EXPECT_NEAR (stateOf (generator).sum, sum, 1e-2);

        generator.setMinSum (10, sum, mean);
        expectNear (delaysOf (generator), delays, "by sum");
        generator.setMinMax (10, 200, mean);
        generator.setSum (sum);
        expectNear (delaysOf (generator), delays, "by sum alone");
    }
}

TEST (Delgen, RisesFromMinimumToMaximumAndBendsWithItsDistribution)
{
    for (std::uint32_t count = 2; count <= Delgen::maxNumDelays; ++count) {
        Delgen generator (count, 20, 40, 0.5f);
        float lastSum = 0;
        for (const float distr : { 0.1f, 0.3f, 0.5f, 0.7f, 0.9f }) {
            const auto copy = generator.setMinMax (20, 60, distr);
            const auto delays = delaysOf (generator);
            EXPECT_EQ (delays, Delays (copy.begin(), copy.end()));
            ASSERT_EQ (delays.size(), count);
            EXPECT_TRUE (std::is_sorted (delays.begin(), delays.end())) << count;
            EXPECT_EQ (delays.front(), 20) << count;
            EXPECT_EQ (delays.back(), 60) << count;
            const float sum = stateOf (generator).sum;
            EXPECT_TRUE (count == 2 || sum > lastSum) << count << " at " << distr;
            lastSum = sum;
        }
    }
}

TEST (Delgen, DrawsTheSameDelaysAgainAboveSixteen)
{
    Delgen first (40, 20, 40, 0.5f), second (16, 20, 40, 0.5f);
    second.setNumDelays (40);
    EXPECT_EQ (delaysOf (first), delaysOf (second));
    const auto delays = delaysOf (first);
    std::vector<float> steps;
    std::adjacent_difference (delays.begin(), delays.end(), std::back_inserter (steps));
    const auto [least, most] = std::minmax_element (steps.begin() + 1, steps.end());
    EXPECT_GT (*most, 2 * *least) << "steps are drawn, not even";

    Delays drawn{ 0 };
    qel::srand (0);
    while (drawn.size() < 40)
        drawn.push_back (drawn.back() + static_cast<float> (qel::rand()));
    const float last = drawn.back(), mean = std::accumulate (drawn.begin(), drawn.end(), 0.0f) / (40 * last);
    for (float& delay : drawn)
        delay = 20 + 40 * delay / last;
    first.setMinMax (20, 60, mean);
    expectNear (delaysOf (first), drawn, "at the distribution of their mean");
}

TEST (Delgen, LimitsWhatItIsGiven)
{
    struct Row
    {
        std::uint32_t count;
        float min, max, distr;
        State expected; // the sum is ignored
    };
    constexpr Row rows[] = {
        { 0, 20, 40, 0.5f, { 1, 20, 40, 0, 0.5f } },          { 64, 20, 40, 0.5f, { 64, 20, 40, 0, 0.5f } },
        { 1000, 20, 40, 0.5f, { 64, 20, 40, 0, 0.5f } },      { 8, -5, 40, 0.05f, { 8, 1, 40, 0, 0.1f } },
        { 8, 50, 40, 2, { 8, 50, 53.2879817f, 0, 0.9f } },    { 8, 20, 20, 0.3f, { 8, 20, 23.2879817f, 0, 0.3f } },
        { 8, 20, 23, 0.3f, { 8, 20, 23.2879817f, 0, 0.3f } }, { 8, 20, 23.5f, 0.3f, { 8, 20, 23.5f, 0, 0.3f } },
    };
    for (const auto& row : rows) {
        Delgen generator (row.count, 20, 40, 0.8f);
        EXPECT_EQ (stateOf (generator).distr, 0.5f);
        generator.setMinMax (row.min, row.max, row.distr);
        const auto state = stateOf (generator);
        EXPECT_EQ (state.numdelays, row.expected.numdelays);
        EXPECT_EQ (state.min, row.expected.min);
        EXPECT_FLOAT_EQ (state.max, row.expected.max);
        EXPECT_EQ (state.distr, row.expected.distr);
    }
    EXPECT_EQ (delaysOf (Delgen (1, 20, 40, 0.5f)), Delays{ 40 }) << "a single delay stands at the maximum";
    EXPECT_EQ (delaysOf (Delgen (2, 20, 40, 0.5f)), (Delays{ 20, 40 }));
}

TEST (Delgen, AnswersTheFirstMessageOfItsTableThatFits)
{
    struct Row
    {
        const char* address;
        std::vector<double> numbers;
        State expected; // from 8 delays between 20 and 40 at 0.3; the sum is ignored
    };
    const Row rows[] = {
        { "/min", { 30 }, { 8, 30, 40, 0, 0.3f } },
        { "/min", { -3 }, { 8, 1, 40, 0, 0.3f } },
        { "/min", { 50 }, { 8, 40, 43.2879817f, 0, 0.3f } },
        { "/max", { 80 }, { 8, 20, 80, 0, 0.3f } },
        { "/max", { 0 }, { 8, 20, 23.2879817f, 0, 0.3f } },
        { "/distr", { 0.7 }, { 8, 20, 40, 0, 0.7f } },
        { "/distr", { 7 }, { 8, 20, 40, 0, 0.9f } },
        { "/sum", { 208 }, { 8, 20, 40, 0, 0.3f } }, // (208 / 8 - 20) / 0.3 + 20
        { "/minmax", { 10, 30, 0.4 }, { 8, 10, 30, 0, 0.4f } },
        { "/minmax", { 10, 30 }, { 8, 10, 30, 0, 0.5f } },
        { "/minsum", { 10, 160, 0.25 }, { 8, 10, 50, 0, 0.25f } },
        { "/minsum", { 10, 160 }, { 8, 10, 30, 0, 0.5f } },
        { "/minsum", { 20, 120 }, { 8, 10, 20, 0, 0.5f } }, // 15 on average, below the minimum: the two are swapped
        { "/m[ai]x", { 80 }, { 8, 20, 80, 0, 0.3f } },
    };
    for (const auto& row : rows) {
        Delgen generator (8, 20, 40, 0.5f);
        generator.setMinMax (20, 40, 0.3f);
        EXPECT_TRUE (generator.processOscMessage (messageOf (row.address, row.numbers))) << row.address;
        const auto state = stateOf (generator);
        EXPECT_EQ (state.numdelays, 8);
        EXPECT_FLOAT_EQ (state.min, row.expected.min) << row.address;
        EXPECT_NEAR (state.max, row.expected.max, 1e-4) << row.address;
        EXPECT_FLOAT_EQ (state.distr, row.expected.distr) << row.address;
        EXPECT_FLOAT_EQ (delaysOf (generator).back(), state.max) << row.address;
    }
}

TEST (Delgen, TakesItsCountFromOneIntegerAndForgetsTheDistribution)
{
    struct Row
    {
        std::int64_t sent;
        int count;
    };
    constexpr Row rows[] = { { 5, 5 }, { 100, 64 }, { -3, 1 }, { 0, 1 }, { INT64_MAX, 64 }, { INT64_MIN, 1 } };
    for (const auto& row : rows) {
        Delgen generator (8, 20, 40, 0.5f);
        generator.setMinMax (20, 40, 0.3f);
        EXPECT_TRUE (generator.processOscMessage (OSCMessage{ qel::String ("/numdelays") }.add (row.sent)));
        EXPECT_EQ (stateOf (generator).numdelays, row.count) << row.sent;
        EXPECT_EQ (stateOf (generator).distr, 0.5f);
        EXPECT_EQ (generator.getDelays().size(), std::size_t (row.count));
    }
}

TEST (Delgen, RefusesWhatItDoesNotKnowAndWhatIsNotFinite)
{
    constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
    const OSCMessage refused[] = {
        messageOf ("/numdelays", { 4 }), // a float
        messageOf ("/min", {}),
        messageOf ("/min", { 1, 2 }),
        messageOf ("/minmax", { 1 }),
        messageOf ("/gain", { 1 }),
        messageOf ("/min", { nan }),
        messageOf ("/max", { inf }),
        messageOf ("/max", { 1e39 }), // beyond single precision
        messageOf ("/max", { 3e38 }), // the sum of the delays is
        messageOf ("/distr", { nan }),
        messageOf ("/sum", { -inf }),
        messageOf ("/minmax", { 20, nan, 0.5 }),
        messageOf ("/minsum", { 20, 300, 0 }),
        messageOf ("/minsum", { 20, 300, -1 }), // a negative power of the first place, 0
        messageOf ("/minsum", { 20, 300, nan }),
        OSCMessage{ qel::String ("/min") }.add ("20"),
    };
    Delgen generator (8, 20, 40, 0.5f);
    const auto before = delaysOf (generator);
    const auto sumBefore = stateOf (generator).sum;
    for (const auto& message : refused) {
        EXPECT_FALSE (generator.processOscMessage (message)) << message.address().text() << " " << &message - refused;
        const auto state = stateOf (generator);
        EXPECT_TRUE (state.numdelays == 8 && state.min == 20 && state.max == 40 && state.distr == 0.5f &&
                     state.sum == sumBefore)
            << message.address().text() << " " << &message - refused;
        EXPECT_EQ (delaysOf (generator), before);
    }
    generator.setMinMax (std::numeric_limits<float>::quiet_NaN(), 50, 0.5f);
    generator.setMinSum (20, std::numeric_limits<float>::infinity(), 0.5f);
    EXPECT_EQ (delaysOf (generator), before);
    expectNear (delaysOf (Delgen (2, std::numeric_limits<float>::quiet_NaN(), 40, 0.5f)), { 1, 4.28798f },
                "the smallest range, for want of numbers");
}
