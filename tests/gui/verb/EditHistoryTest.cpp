#include "gui/verb/EditHistory.h"

#include <gtest/gtest.h>

namespace
{

using halcyra::EditHistory;

constexpr int slider = 1, wheel = 2;
const EditHistory::Gesture press{ &slider, true }, turn{ &wheel, false }, otherTurn{ &slider, false };

TEST (EditHistory, AGestureIsOneStepFromItsFirstValueToItsLast)
{
    EditHistory history;
    history.record (press, 7, 1, 2);
    history.record (press, 8, 10, 11);
    history.record (press, 7, 2, 5);
    EXPECT_TRUE (history.close());
    const auto* step = history.undo();
    ASSERT_NE (step, nullptr);
    ASSERT_EQ (step->size(), 2u);
    EXPECT_EQ (step->front().cell, 7);
    EXPECT_EQ (step->front().before, 1);
    EXPECT_EQ (step->front().after, 5);
    EXPECT_EQ (history.undo(), nullptr);
    EXPECT_EQ (history.redo(), step);
    EXPECT_EQ (history.redo(), nullptr);
}

TEST (EditHistory, ARunOfTheWheelEndsWithAnotherControlAndAPressIsNoPartOfIt)
{
    EditHistory history;
    for (const auto& gesture : { turn, turn, otherTurn, turn, press })
        history.record (gesture, 1, 0, 1);
    int steps = 0;
    while (history.undo() != nullptr)
        ++steps;
    EXPECT_EQ (steps, 4);
}

TEST (EditHistory, WhatComesBackToWhereItBeganIsNoStepAndADoubleClickIsOne)
{
    EditHistory history;
    history.record (press, 1, 0, 3);
    history.record (press, 1, 3, 0);
    EXPECT_FALSE (history.close());
    EXPECT_FALSE (history.close());
    EXPECT_EQ (history.undo(), nullptr);

    history.record (press, 1, 5, 3);
    history.close();
    history.record (press, 1, 3, 0);
    history.close();
    EXPECT_EQ (history.joinNewest (2), 1);
    history.record (press, 1, 0, 8);
    history.close();
    history.record (press, 1, 8, 0);
    history.close();
    EXPECT_EQ (history.joinNewest (2), 0);
    const auto* step = history.undo();
    ASSERT_NE (step, nullptr);
    EXPECT_EQ (step->front().before, 5);
    EXPECT_EQ (step->front().after, 0);
    EXPECT_EQ (history.undo(), nullptr);
    EXPECT_EQ (history.redo(), step);
    for (const float value : { 8.0f, 9.0f }) {
        history.record (press, 1, 0, value);
        history.close();
    }
    (void)history.undo();
    EXPECT_EQ (history.joinNewest (2), 2) << "what is undone joins nothing";
    EXPECT_NE (history.redo(), nullptr);
}

TEST (EditHistory, KeepsAHundredStepsAndANewOneEndsWhatWasUndone)
{
    EditHistory history;
    for (int i = 0; i < 130; ++i) {
        history.record (press, 1, static_cast<float> (i), static_cast<float> (i + 1));
        history.close();
    }
    const EditHistory::Step* oldest = nullptr;
    int steps = 0;
    while (const auto* step = history.undo()) {
        oldest = step;
        ++steps;
    }
    EXPECT_EQ (steps, 100);
    EXPECT_EQ (oldest->front().before, 30);
    ASSERT_NE (history.redo(), nullptr);
    history.record (press, 1, 31, 99);
    history.close();
    EXPECT_EQ (history.redo(), nullptr);
    EXPECT_EQ (history.undo()->front().after, 99);
    EXPECT_EQ (history.undo()->front().before, 30);
}

}
