#include "host/bench/Doze.h"
#include <algorithm>
#include <cstdint>
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace bench
{

namespace
{
HANDLE alarmClock()
{
    static const HANDLE event = CreateEventW (nullptr, FALSE, FALSE, nullptr);
    return event;
}
}

void wakeMainThread() { SetEvent (alarmClock()); }

bool doze (std::chrono::milliseconds longest, const std::vector<int>&, int)
{
    const auto most = static_cast<std::int64_t> (INFINITE - 1);
    const auto time = static_cast<DWORD> (std::clamp<std::int64_t> (longest.count(), 0, most));
    const HANDLE event = alarmClock();
    MsgWaitForMultipleObjectsEx (1, &event, time, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    return false;
}

}
