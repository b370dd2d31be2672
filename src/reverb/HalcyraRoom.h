#pragma once
#include "reverb/HalcyraParameters.h"

namespace halcyra
{

/** Room volumes in cubic metres. */
inline constexpr float smallestRoom = static_cast<float> (roomRange.lowest),
                       largestRoom = static_cast<float> (roomRange.highest);

/** The time structure derived from a room's volume. Times in ms. */
struct RoomParameters
{
    float earlyStart = 1, earlyEnd = 1, earlyDistr = 0.5f;
    float clusterStart = 1, clusterEnd = 1, clusterDistr = 0.5f;
    float reverbStart = 1;
    float modalDensity = 0.2f;
};

/** The legal parameters nearest to a room of this volume, clamped to the room range, for a global decay time in
    seconds and a number of internal channels. */
[[nodiscard]] RoomParameters computeRoomParameters (int numinternals, float volume, float decayTime) noexcept;

/** Brings the stages into range and order. */
void validateRoomParameters (RoomParameters& room, int numinternals) noexcept;

}
