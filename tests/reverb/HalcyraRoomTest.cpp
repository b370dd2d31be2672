#include "reverb/HalcyraRoom.h"

#include <gtest/gtest.h>

namespace
{

using halcyra::computeRoomParameters;
using halcyra::RoomParameters;

constexpr int channelCounts[] = { 1, 2, 7, 8, 9, 15, 16, 24, 64 };

TEST (HalcyraRoom, ALargeRoomComesToWorkedNumbers)
{
    const auto room = computeRoomParameters (8, 15000, 2);
    EXPECT_NEAR (room.earlyStart, 7.98f, 0.005f);
    EXPECT_NEAR (room.earlyEnd, 97.98f, 0.005f);
    EXPECT_NEAR (room.clusterStart, 88.18f, 0.005f);
    EXPECT_EQ (room.clusterEnd, 300);
    EXPECT_NEAR (room.reverbStart, 349.36f, 0.005f);
}

TEST (HalcyraRoom, ASmallRoomComesToWorkedNumbers)
{
    const auto room = computeRoomParameters (8, 10, 2);
    EXPECT_NEAR (room.earlyStart, 1.53f, 0.005f);
    EXPECT_NEAR (room.earlyEnd, 2.53f, 0.005f);
    EXPECT_NEAR (room.clusterStart, 2.53f, 0.005f) << "2.28 before the stages are brought into order";
}

TEST (HalcyraRoom, TheModalDensityOfALargeRoomIsALimitOfItsBounds)
{
    // The gap of 261.18 ms between cluster and reverb start: at least 12 times that for eight channels.
    EXPECT_NEAR (computeRoomParameters (8, 15000, 2).modalDensity, 12 * 0.26118f, 1e-4f);
    EXPECT_NEAR (computeRoomParameters (16, 15000, 2).modalDensity, 24 * 0.26118f, 1e-4f);
    EXPECT_NEAR (computeRoomParameters (8, 15000, 30).modalDensity, 7.5f, 1e-4f) << "a quarter of the decay time";
}

TEST (HalcyraRoom, TheStagesStandInOrderForEveryRoom)
{
    for (const int n : channelCounts)
        for (const float decay : { 0.1f, 2.0f, 30.0f })
            for (float volume = 10; volume <= 15000; volume += 187) {
                SCOPED_TRACE (testing::Message() << n << " channels, " << decay << " s, " << volume << " m^3");
                const auto room = computeRoomParameters (n, volume, decay);
                EXPECT_GE (room.earlyStart, 1);
                EXPECT_GE (room.earlyEnd, room.earlyStart + 1);
                EXPECT_LE (room.earlyEnd, 120);
                EXPECT_GE (room.clusterStart, room.earlyStart + 1);
                EXPECT_GE (room.clusterEnd, room.clusterStart + 1);
                EXPECT_GE (room.clusterEnd, room.earlyEnd);
                EXPECT_LE (room.clusterEnd, 300);
                EXPECT_GE (room.reverbStart, room.clusterStart);
                EXPECT_LE (room.reverbStart, 500);
                for (const float distr : { room.earlyDistr, room.clusterDistr }) {
                    EXPECT_GE (distr, 0.1f);
                    EXPECT_LE (distr, 0.9f);
                }
                EXPECT_GE (room.modalDensity, 0.2f);
            }
}

TEST (HalcyraRoom, ALargerRoomReflectsLater)
{
    auto previous = computeRoomParameters (8, 10, 2);
    for (float volume = 500; volume <= 15000; volume += 500) {
        const auto room = computeRoomParameters (8, volume, 2);
        EXPECT_GT (room.earlyEnd, previous.earlyEnd) << volume;
        EXPECT_GT (room.clusterStart, previous.clusterStart) << volume;
        EXPECT_GE (room.clusterEnd, previous.clusterEnd) << volume;
        previous = room;
    }
}

TEST (HalcyraRoom, VolumesBeyondTheRangeCountAsItsEnds)
{
    EXPECT_EQ (computeRoomParameters (8, 1e9f, 2).reverbStart, computeRoomParameters (8, 15000, 2).reverbStart);
    EXPECT_EQ (computeRoomParameters (8, -5, 2).reverbStart, computeRoomParameters (8, 10, 2).reverbStart);
}

TEST (HalcyraRoom, ValidationWidensTheClusterToTheGapBetweenTheStarts)
{
    RoomParameters room;
    room.earlyStart = 10;
    room.earlyEnd = 50;
    room.clusterStart = 60;
    room.clusterEnd = 70.5f;
    room.reverbStart = 20;
    room.modalDensity = 1;
    halcyra::validateRoomParameters (room, 8);
    EXPECT_EQ (room.clusterEnd, 100.5f) << "in whole steps, until 60 - 10 <= end - 50";
    EXPECT_EQ (room.reverbStart, 60);
    EXPECT_EQ (room.modalDensity, 0.2f) << "no gap leaves no density, and the floor comes last";
}

TEST (HalcyraRoom, ValidationLimitsEachStage)
{
    RoomParameters room{ 500, 500, 2, 500, 500, -1, 900, 99 };
    halcyra::validateRoomParameters (room, 8);
    EXPECT_EQ (room.earlyStart, 120);
    EXPECT_EQ (room.earlyEnd, 120);
    EXPECT_EQ (room.earlyDistr, 0.9f);
    EXPECT_EQ (room.clusterStart, 300);
    EXPECT_EQ (room.clusterEnd, 300);
    EXPECT_EQ (room.clusterDistr, 0.1f);
    EXPECT_EQ (room.reverbStart, 500);
    EXPECT_NEAR (room.modalDensity, 36 * 0.2f, 1e-5f);
}

}
