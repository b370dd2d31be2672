#pragma once
#include <chrono>
#include <vector>

namespace bench
{

/** Wakes the main thread, or makes its next doze return at once. Any thread. */
void wakeMainThread();

/** Sleeps until wakeMainThread(), until a descriptor or the input is readable (on Windows: until a message is in the
    thread's queue), or until the time is over. An input below 0 is none. Returns whether the input is readable.
    Main thread. */
bool doze (std::chrono::milliseconds longest, const std::vector<int>& descriptors, int input);

}
