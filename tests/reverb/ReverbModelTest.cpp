#include "reverb/ReverbModel.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

namespace
{

namespace parameter = halcyra::parameter;
namespace cell = halcyra::cell;
using halcyra::Edit;
using halcyra::ReverbModel;
using testing::ElementsAre;
using testing::IsEmpty;

/** What stops at its neighbours: starts and ends. */
constexpr HalcyraReverbParameter stageTimes[] = { parameter::earlyStart, parameter::earlyEnd, parameter::clusterStart,
                                                  parameter::clusterEnd, parameter::reverbStart };

using State = std::array<float, cell::count>;

State stateOf (const ReverbModel& model)
{
    State state{};
    for (int i = 0; i < cell::count; ++i)
        state[static_cast<std::size_t> (i)] = model.value (i);
    return state;
}

/** A model whose turns the test ends, if it asks for that, and its notifications: "7" for a parameter, "filter 0". */
struct Model : ReverbModel, private ReverbModel::Listener
{
    explicit Model (int internals = 8) : ReverbModel (internals)
    {
        wakeTurnEnd = [this] { endIsDue = ++wakes > 0; };
        addListener (this);
    }
    ~Model() override { removeListener (this); }

    void parameterTold (HalcyraReverbParameter number) override
    {
        told.push_back (std::to_string (number));
        if (onTold)
            onTold (number);
    }
    void filterTold (HalcyraFilter number) override { told.push_back ("filter " + std::to_string (number)); }
    std::vector<std::string> end()
    {
        if (std::exchange (endIsDue, false))
            endTurn();
        return std::exchange (told, {});
    }
    void set (HalcyraReverbParameter number, float value) { setParameter (number, value, Edit::message); }

    int wakes = 0;
    bool endIsDue = false;
    std::vector<std::string> told;
    std::function<void (HalcyraReverbParameter)> onTold;
};

TEST (ReverbModel, StartsWithTheSteppedDefaultsAndTellsNobody)
{
    Model model;
    EXPECT_EQ (model.parameters().tr0, 2.0f) << "1.995 lies between two steps";
    EXPECT_EQ (model.parameters().earlyStart, 22.22f);
    EXPECT_EQ (model.parameters().air, 1);
    EXPECT_EQ (model.roomSize(), 2000);
    EXPECT_EQ (model.filter (3), (HLShelfParameters{ 0, 0, 0, 0, 250, 4000 }));
    EXPECT_EQ (model.wakes, 0);
    EXPECT_THAT (model.end(), IsEmpty());
}

TEST (ReverbModel, SetsAtOnceAndTellsNumbersOnceATurnInTheOrderOfTheirFirstChange)
{
    Model model;
    model.set (parameter::fh, 5000);
    model.set (parameter::gain, 3.004f);
    model.set (parameter::fh, 6000);
    EXPECT_EQ (model.parameters().gain, 3.0f) << "stepped";
    EXPECT_EQ (model.parameters().fh, 6000);
    EXPECT_THAT (model.told, IsEmpty());
    model.set (parameter::infinite, 1);
    model.set (parameter::infinite, 2);
    EXPECT_THAT (model.told, ElementsAre ("18")) << "a switch at once, and once";
    EXPECT_EQ (model.wakes, 1);
    EXPECT_THAT (model.end(), ElementsAre ("18", "6", "0"));
    model.set (parameter::gain, 3.001f);
    EXPECT_EQ (model.wakes, 1) << "the same step is no change";
    EXPECT_THAT (model.end(), IsEmpty());
}

TEST (ReverbModel, WhatIsToldMayBeginANewTurn)
{
    Model model;
    model.onTold = [&] (int number) {
        if (number == parameter::gain)
            model.set (parameter::tr0, 7);
    };
    model.set (parameter::gain, 3);
    EXPECT_THAT (model.end(), ElementsAre ("0"));
    EXPECT_EQ (model.wakes, 2);
    EXPECT_THAT (model.end(), ElementsAre ("1"));
}

TEST (ReverbModel, ARoomSizeGivesOneStateWhateverStoodBefore)
{
    std::mt19937 random (1);
    std::uniform_real_distribution<float> volume (-100, 16000), any (-50, 600);
    for (int i = 0; i < 20000; ++i) {
        const int internals = 2 + i % 15;
        Model fresh (internals), used (internals);
        for (int step = 0; step < 6; ++step) {
            used.set (static_cast<int> (random() % parameter::count), any (random));
            used.setRoomSize (volume (random), Edit::message);
        }
        used.endTurn();
        used.set (parameter::tr0, 2);
        const float wish = volume (random);
        fresh.setRoomSize (wish, Edit::message);
        used.setRoomSize (wish, Edit::message);
        for (const int number : { 7, 8, 9, 12, 13, 14, 15, 16, +cell::roomSize })
            ASSERT_EQ (fresh.value (number), used.value (number)) << "volume " << wish << ", number " << number;
    }
}

TEST (ReverbModel, ARoomSizeTellsAllEightIfItMovesAndElseWhatChanges)
{
    Model model;
    model.setRoomSize (3000, Edit::message);
    EXPECT_THAT (model.end(), ElementsAre ("7", "8", "9", "12", "13", "14", "15", "16"));
    const auto derived = model.parameters().earlyStart;
    model.set (parameter::earlyStart, 5);
    model.end();
    model.setRoomSize (3001, Edit::message);
    EXPECT_EQ (model.parameters().earlyStart, derived);
    EXPECT_THAT (model.end(), ElementsAre ("7"));
    model.setRoomSize (15000, Edit::message);
    model.set (parameter::earlyStart, 5);
    EXPECT_EQ (model.parameters().earlyStart, 5) << "what follows in the turn holds";
    EXPECT_NEAR (model.parameters().earlyEnd, 97.98f, 0.005f);
    EXPECT_NEAR (model.parameters().reverbStart, 349.36f, 0.005f);
    EXPECT_THAT (model.end(), ElementsAre ("7", "8", "9", "12", "13", "14", "15", "16"));
}

TEST (ReverbModel, SingleTimesStopAtTheirNeighboursAndFiveInOneTurnAreARecall)
{
    Model model;
    model.set (parameter::clusterEnd, 300);
    model.end();
    model.set (parameter::earlyEnd, 1);
    EXPECT_EQ (model.parameters().earlyEnd, 22.22f) << "the early start stops it";
    model.end();
    model.set (parameter::earlyEnd, 1);
    model.set (parameter::reverbStart, 480);
    model.set (parameter::clusterStart, 200);
    model.set (parameter::clusterEnd, 210);
    EXPECT_EQ (model.parameters().earlyEnd, 22.22f);
    model.set (parameter::earlyStart, 0);
    EXPECT_EQ (model.parameters().earlyEnd, 1) << "all five have come";
    EXPECT_EQ (model.parameters().clusterStart, 200);
    model.set (parameter::clusterStart, 205);
    EXPECT_EQ (model.parameters().clusterStart, 205) << "the last wish counts";
    model.setRoomSize (2000, Edit::message);
    const float earlyEnd = model.parameters().earlyEnd;
    model.set (parameter::earlyStart, 119);
    EXPECT_EQ (model.parameters().earlyEnd, earlyEnd) << "a room size begins anew";
    EXPECT_EQ (model.parameters().earlyStart, earlyEnd);
    model.end();
    for (const auto number :
         { parameter::reverbStart, parameter::clusterEnd, parameter::clusterStart, parameter::earlyEnd })
        model.set (number, 100);
    model.setParameter (parameter::earlyEnd, 60, Edit::hand);
    model.set (parameter::earlyStart, 119);
    EXPECT_EQ (model.parameters().earlyEnd, 60) << "and so does the hand";
    EXPECT_EQ (model.parameters().earlyStart, 60);
}

TEST (ReverbModel, WishesThatChangeNothingEndWithTheirTurnToo)
{
    for (const int last : stageTimes) {
        Model model;
        model.set (parameter::clusterEnd, 300);
        model.end();
        for (const int number : stageTimes)
            if (number != last)
                model.set (number, model.value (number));
        model.end();
        auto expected = stateOf (model);
        model.set (last, last == parameter::earlyStart ? 119.0f : 1.0f);
        expected[static_cast<std::size_t> (last)] = model.value (last);
        EXPECT_EQ (stateOf (model), expected) << "a single time moves no other: " << last;
    }
}

/** Random edits, as a patcher or a user could make them: messages, and every third one of another kind. */
void wander (ReverbModel& model, std::mt19937& random, int steps, Edit third = Edit::hand)
{
    std::uniform_real_distribution<float> part (-0.1f, 1.1f);
    for (int i = 0; i < steps; ++i) {
        const auto edit = random() % 3 == 0 ? third : Edit::message;
        switch (random() % 12) {
        case 0:
            model.setRoomSize (15000 * part (random), edit);
            break;
        case 1:
            model.setFilterField (static_cast<int> (random() % 4), random() % 6, 100 * part (random), edit);
            break;
        case 2:
            if (random() % 8 == 0)
                model.reset (edit);
            break;
        case 3:
            model.endTurn();
            break;
        default: {
            const auto& row = halcyra::parameterTable[random() % halcyra::parameterTable.size()];
            const auto lowest = static_cast<float> (row.range.lowest), highest = static_cast<float> (row.range.highest);
            const float at = row.isSwitch() ? static_cast<float> (random() % 2) : part (random);
            model.setParameter (row.number, lowest + (highest - lowest) * at, edit);
        }
        }
    }
    model.endTurn();
}

TEST (ReverbModel, EveryStateThatCanBeReachedIsRecalledInOneTurnInAnyOrder)
{
    std::mt19937 random (2);
    for (int i = 0; i < 5000; ++i) {
        Model sender (2 + i % 15), receiver (2 + i % 15);
        wander (sender, random, 25);
        wander (receiver, random, 25);
        std::vector<int> numbers (parameter::count);
        std::iota (numbers.begin(), numbers.end(), 0);
        std::shuffle (numbers.begin(), numbers.end(), random);
        receiver.told.clear();
        for (const int number : numbers)
            receiver.set (number, sender.value (number));
        for (int filter = 0; filter < 4; ++filter)
            receiver.setFilter (filter, sender.filter (filter), Edit::message);
        receiver.endTurn();
        auto expected = stateOf (sender), found = stateOf (receiver);
        expected[cell::roomSize] = found[cell::roomSize] = 0; // a state does not store its value
        ASSERT_EQ (expected, found) << "state " << i;
        receiver.reset (Edit::message);
        receiver.endTurn();
        ASSERT_EQ (stateOf (receiver), stateOf (Model (2 + i % 15))) << "a reset leaves nothing behind";
    }
}

TEST (ReverbModel, EveryValueThatChangesIsToldAndAllAreFinite)
{
    std::mt19937 random (3);
    Model model;
    State told = stateOf (model);
    for (int i = 0; i < 20000; ++i) {
        wander (model, random, 3);
        for (const auto& what : std::exchange (model.told, {}))
            if (what.find ("filter") == std::string::npos)
                told[static_cast<std::size_t> (std::stoi (what))] = model.value (std::stoi (what));
        for (const auto& row : halcyra::parameterTable) {
            const float value = model.value (row.number);
            ASSERT_EQ (told[static_cast<std::size_t> (row.number)], value) << row.key;
            ASSERT_TRUE (value >= static_cast<float> (row.range.lowest) &&
                         value <= static_cast<float> (row.range.highest));
        }
        for (const float bad : { std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::infinity() }) {
            model.set (i % 25 - 2, bad);
            model.setRoomSize (bad, Edit::message);
            model.setFilterField (i % 6 - 1, static_cast<std::size_t> (i % 8), bad, Edit::message);
        }
    }
}

TEST (ReverbModel, ResetTellsFiltersAlwaysThenSwitchesAndNumbersThatDiffer)
{
    Model model;
    model.reset (Edit::message);
    EXPECT_THAT (model.end(), ElementsAre ("filter 0", "filter 1", "filter 2", "filter 3"));
    model.set (parameter::earlyDistr, 0.3f);
    model.set (parameter::infinite, 1);
    model.setRoomSize (2500, Edit::quiet);
    model.end();
    model.reset (Edit::message);
    EXPECT_THAT (model.end(), ElementsAre ("filter 0", "filter 1", "filter 2", "filter 3", "18", "7", "8", "12", "13",
                                           "15", "9", "14", "16"));
}

TEST (ReverbModel, TheHandThatHoldsAControlWinsOverMessages)
{
    std::mt19937 random (5);
    for (int number = 0; number < cell::count; ++number) {
        Model model;
        wander (model, random, 50);
        const float ofTheHand = model.value (number);
        model.hold (number);
        for (int i = 0; i < 1000; ++i) {
            wander (model, random, 1, Edit::quiet);
            ASSERT_EQ (model.value (number), ofTheHand) << number;
        }
        model.release();
        for (int i = 0; i < 1000 && model.value (number) == ofTheHand; ++i)
            wander (model, random, 1, Edit::quiet);
        EXPECT_NE (model.value (number), ofTheHand) << number;
    }
}

TEST (ReverbModel, WhatTheHandDoesNotHoldFollowsMessagesAsFarAsItFits)
{
    Model model;
    model.hold (cell::ofFilter (1, 2));
    model.setFilter (1, { 1, 2, 3, 4, 500, 600 }, Edit::message);
    EXPECT_EQ (model.filter (1), (HLShelfParameters{ 1, 2, 0, 4, 500, 600 })) << "the other fields follow";
    model.hold (cell::roomSize);
    model.setRoomSize (3000, Edit::hand);
    const float clusterOfTheHand = model.parameters().clusterEnd;
    model.setRoomSize (500, Edit::message);
    EXPECT_EQ (model.value (cell::roomSize), 3000);
    EXPECT_EQ (model.parameters().clusterEnd, clusterOfTheHand);
    model.release();
    model.setRoomSize (halcyra::defaultRoomSize, Edit::message);
    model.end();
    model.hold (parameter::earlyEnd);
    const float heldEnd = model.parameters().earlyEnd;
    for (const int number : stageTimes)
        model.set (number, 5);
    EXPECT_EQ (model.parameters().earlyEnd, heldEnd);
    EXPECT_GE (model.parameters().clusterEnd, heldEnd) << "the limits hold all the same";
    model.end();
    model.hold (parameter::earlyStart);
    const float held = model.parameters().earlyStart;
    for (const int number : stageTimes)
        model.set (number, 2);
    EXPECT_EQ (model.parameters().earlyStart, held) << "a recall fits around it too";
    EXPECT_EQ (model.parameters().earlyEnd, held);
}

TEST (ReverbModel, FiltersAreClippedNeverSteppedAndAnEqualOneIsSilent)
{
    Model model;
    model.setFilter (2, { -300, 0.123f, 31, 5, 19.5f, 4000.25f }, Edit::message);
    EXPECT_EQ (model.filter (2), (HLShelfParameters{ -200, 0.123f, 30, 5, 20, 4000.25f }));
    EXPECT_THAT (std::exchange (model.told, {}), ElementsAre ("filter 2"));
    model.setFilter (2, model.filter (2), Edit::message);
    EXPECT_THAT (model.told, IsEmpty());
    model.setFilter (2, {}, Edit::quiet);
    EXPECT_THAT (model.told, IsEmpty());
    model.setFilter (4, {}, Edit::message, true);
    model.setFilter (-1, {}, Edit::message, true);
    EXPECT_THAT (model.told, IsEmpty());
}

}
