#pragma once
#include <atomic>
#include <cstdint>

namespace qel
{

/** Milliseconds since an arbitrary start, 32 bits; wraps after 49 days. Any thread. */
[[nodiscard]] std::uint32_t millisecondCounter() noexcept;

/** Wall clock in milliseconds since the start of 1970: read once, then advanced by the counter. Any thread. */
[[nodiscard]] std::int64_t currentTimeMilliseconds() noexcept;

/** Sleeps; below 10 ms more accurate than a plain sleep. Times below 1 return at once. */
void sleepMilliseconds (int milliseconds);

/** Smooths counter readings: a step back of up to 1000 ms is noise, and returns the last reading. */
class SteadyCounter
{
public:
    [[nodiscard]] std::uint32_t accept (std::uint32_t reading) noexcept;

private:
    std::atomic<std::uint32_t> last{ 0 };
};

/** Advances the wall clock by a counter, and rereads the wall clock once the counter has wrapped. */
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
