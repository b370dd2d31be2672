#pragma once
#include <atomic>
#include <cstdint>

namespace qel
{

/** Milliseconds since some moment, in 32 bits; wraps around after 49 days. Any thread. */
[[nodiscard]] std::uint32_t millisecondCounter() noexcept;

/** Wall clock, in milliseconds since the beginning of 1970: read once, then followed by the counter. Any thread. */
[[nodiscard]] std::int64_t currentTimeMilliseconds() noexcept;

/** Waits; below 10 ms more exactly than a plain sleep. A time below 1 returns at once. */
void sleepMilliseconds (int milliseconds);

/** Smooths a counter's readings: a step back of up to 1000 ms is noise, and answered with the last reading. */
class SteadyCounter
{
public:
    [[nodiscard]] std::uint32_t accept (std::uint32_t reading) noexcept;

private:
    std::atomic<std::uint32_t> last{ 0 };
};

/** Follows the wall clock by a counter, and asks the wall clock anew once the counter has wrapped. */
class FollowedClock
{
public:
    using WallClock = std::int64_t (*)() noexcept;

    explicit FollowedClock (WallClock clock) noexcept : wall (clock) {}
    [[nodiscard]] std::int64_t at (std::uint32_t counter) noexcept;

private:
    WallClock wall;
    std::atomic<bool> started{ false };
    std::atomic<std::uint32_t> lastCounter{ 0 };
    std::atomic<std::int64_t> offset{ 0 };
};

}
