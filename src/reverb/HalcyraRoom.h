#pragma once
#include "reverb/HalcyraParameters.h"

namespace halcyra
{

/** The volumes of rooms, in cubic metres. */
inline constexpr float smallestRoom = static_cast<float> (roomRange.lowest),
                       largestRoom = static_cast<float> (roomRange.highest);

/** What a room's volume makes of the time structure. Times in ms. */
struct RoomParameters
{
    float earlyStart = 1, earlyEnd = 1, earlyDistr = 0.5f;
    float clusterStart = 1, clusterEnd = 1, clusterDistr = 0.5f;
    float reverbStart = 1;
    float modalDensity = 0.2f;
};

/** The legal parameters nearest to a room of that volume, limited to those of rooms, with that global decay time in
    seconds and that number of internal channels. */
[[nodiscard]] RoomParameters computeRoomParameters (int numinternals, float volume, float decayTime) noexcept;

/** Brings the stages into their ranges and their order. */
void validateRoomParameters (RoomParameters& room, int numinternals) noexcept;

}
