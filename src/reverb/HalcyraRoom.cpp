#include "reverb/HalcyraRoom.h"

#include "reverb/HalcyraParameters.h"

#include <algorithm>
#include <cmath>

namespace halcyra
{

namespace
{

constexpr float highest (HalcyraReverbParameter number)
{
    return static_cast<float> (parameterRow (number)->range.highest);
}

constexpr float latestEarly = highest (parameter::earlyEnd), latestCluster = highest (parameter::clusterEnd),
                latestReverb = highest (parameter::reverbStart);
constexpr float leastDensity = static_cast<float> (parameterRow (parameter::modalDensity)->range.lowest);

/** If the bounds cross, the top one wins. */
float bounded (float value, float bottom, float top) noexcept { return value > top ? top : std::max (value, bottom); }

/** Bounds of the modal density. Eight channels make one block; more channels count in whole blocks. */
struct DensityBounds
{
    float lower, upper; // per block
    float third;        // another upper bound per block
    float blocks;

    DensityBounds (int numinternals, float reverbStart, float clusterStart) noexcept
    {
        const float delay = 0.001f * (reverbStart - clusterStart);
        const float n = static_cast<float> (std::min (numinternals, 8));
        lower = 1.5f * n * delay;
        upper = 0.5f * n * (n + 1) * delay;
        third = n * ((n - 1) * n * n / 6000.0f + delay);
        blocks = numinternals > 8 ? static_cast<float> (numinternals >> 3) : 1.0f;
    }

    [[nodiscard]] float limited (float density) const noexcept
    {
        return std::max (bounded (density, blocks * lower, blocks * upper), leastDensity);
    }
};

void computeTimes (RoomParameters& room, float volume) noexcept
{
    const float side = 0.8f * std::sqrt (volume);
    const float r = (volume - smallestRoom) / (largestRoom - smallestRoom);
    room.earlyEnd = std::clamp (side, 1.0f, latestEarly);
    room.clusterStart = std::clamp (side * 0.9f, 1.0f, latestCluster);
    room.earlyStart = std::max (std::min (room.earlyEnd - (89 * r + 1), room.earlyEnd), 1.0f);
    room.earlyEnd = bounded (room.earlyEnd, room.earlyStart, latestEarly);
    room.clusterEnd = 295 * r + 5 + room.clusterStart;
    room.reverbStart = 0.9f * room.clusterEnd; // before the cluster's end is clamped
    room.clusterEnd = bounded (room.clusterEnd, room.earlyEnd, latestCluster);
    room.clusterStart = bounded (room.clusterStart, room.earlyStart, latestCluster);
    room.reverbStart = bounded (room.reverbStart, room.clusterStart, latestReverb);
}

void computeDensity (RoomParameters& room, int numinternals, float decayTime) noexcept
{
    const DensityBounds bounds (numinternals, room.reverbStart, room.clusterStart);
    const float wish = std::min (std::min (decayTime, bounds.upper), bounds.third);
    room.modalDensity = bounds.limited (std::max (std::max (wish, bounds.lower), decayTime / 4));

    const float range = bounds.blocks * bounds.upper - leastDensity;
    const float f = range == 0 ? 0.0f : (room.modalDensity - leastDensity) / range;
    room.earlyDistr = std::clamp (0.20000002f * f + 0.4f, 0.1f, 0.9f);
    room.clusterDistr = std::clamp (0.29999998f * f + 0.4f, 0.1f, 0.9f);
}

}

RoomParameters computeRoomParameters (int numinternals, float volume, float decayTime) noexcept
{
    RoomParameters room;
    computeTimes (room, std::clamp (volume, smallestRoom, largestRoom));
    computeDensity (room, numinternals, decayTime);
    validateRoomParameters (room, numinternals);
    return room;
}

void validateRoomParameters (RoomParameters& room, int numinternals) noexcept
{
    room.earlyStart = std::clamp (room.earlyStart, 1.0f, latestEarly);
    room.earlyEnd = bounded (room.earlyEnd, room.earlyStart + 1, latestEarly);
    room.earlyDistr = std::clamp (room.earlyDistr, 0.1f, 0.9f);
    room.clusterStart = bounded (room.clusterStart, room.earlyStart + 1, latestCluster);
    // The cluster stage stays at least as wide as the gap between the two stages' starts.
    while (room.clusterStart - room.earlyStart > room.clusterEnd - room.earlyEnd)
        room.clusterEnd += 1;
    room.clusterEnd = bounded (room.clusterEnd, std::max (room.clusterStart + 1, room.earlyEnd), latestCluster);
    room.clusterDistr = std::clamp (room.clusterDistr, 0.1f, 0.9f);
    room.reverbStart = bounded (room.reverbStart, room.clusterStart, latestReverb);
    room.modalDensity = DensityBounds (numinternals, room.reverbStart, room.clusterStart).limited (room.modalDensity);
}

}
