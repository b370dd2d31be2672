#include "common/OrvaneDspClock.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace qel
{

namespace
{

std::int64_t wallClock() noexcept
{
    using namespace std::chrono;
    return duration_cast<milliseconds> (system_clock::now().time_since_epoch()).count();
}

}

std::uint32_t SteadyCounter::accept (std::uint32_t reading) noexcept
{
    constexpr std::uint32_t noise = 1000;
    const std::uint32_t previous = last.load (std::memory_order_relaxed);
    if (reading < previous && previous - reading <= noise)
        return previous;
    last.store (reading, std::memory_order_relaxed);
    return reading;
}

std::int64_t FollowedClock::at (std::uint32_t counter) noexcept
{
    constexpr std::uint32_t tolerance = 10;
    const std::uint32_t previous = lastCounter.exchange (counter);
    const bool hasWrapped = counter < previous && previous - counter > tolerance;
    if (! started || hasWrapped) {
        offset = wall() - static_cast<std::int64_t> (counter);
        started = true;
    }
    return offset + static_cast<std::int64_t> (counter);
}

std::uint32_t millisecondCounter() noexcept
{
    using namespace std::chrono;
    static SteadyCounter counter;
    return counter.accept (
        static_cast<std::uint32_t> (duration_cast<milliseconds> (steady_clock::now().time_since_epoch()).count()));
}

std::int64_t currentTimeMilliseconds() noexcept
{
    static FollowedClock clock (wallClock);
    return clock.at (millisecondCounter());
}

void sleepMilliseconds (int milliseconds)
{
    constexpr int shortest = 1, longEnoughToSleep = 10;
    const std::chrono::milliseconds time (milliseconds);
    if (milliseconds >= longEnoughToSleep) {
        std::this_thread::sleep_for (time);
    } else if (milliseconds >= shortest) {
        std::mutex mutex;
        std::condition_variable never;
        std::unique_lock<std::mutex> lock (mutex);
        never.wait_for (lock, time, [] { return false; });
    }
}

}
