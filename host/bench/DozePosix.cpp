#include "host/bench/Doze.h"
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <limits>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace bench
{

namespace
{
std::atomic<bool> isWoken{ false };

int alarmClock()
{
    static const int descriptor = eventfd (0, EFD_NONBLOCK | EFD_CLOEXEC);
    return descriptor;
}
}

void wakeMainThread()
{
    const std::uint64_t once = 1;
    if (! isWoken.exchange (true)) [[maybe_unused]]
        const auto written = write (alarmClock(), &once, sizeof once);
}

bool doze (std::chrono::milliseconds longest, const std::vector<int>& descriptors, int input)
{
    std::vector<pollfd> sources{ { input, POLLIN, 0 }, { alarmClock(), POLLIN, 0 } };
    for (const int descriptor : descriptors)
        sources.push_back ({ descriptor, POLLIN, 0 });
    const auto most = static_cast<std::int64_t> (std::numeric_limits<int>::max());
    const auto time = static_cast<int> (std::clamp<std::int64_t> (longest.count(), 0, most));
    const bool isReady = poll (sources.data(), sources.size(), time) > 0;

    std::uint64_t times = 0;
    if (isWoken.exchange (false)) [[maybe_unused]]
        const auto taken = read (alarmClock(), &times, sizeof times);
    return isReady && input >= 0 && sources.front().revents != 0;
}

}
