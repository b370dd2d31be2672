#pragma once
#include <chrono>
#include <vector>

namespace bench
{

/** Ends the main thread's doze, or its next one at once. Any thread. */
void wakeMainThread();

/** Sleeps until wakeMainThread() is called, one of the descriptors or the input can be read (on Windows: a message
    is in the thread's queue), or the time is over. An input below 0 is none. True if the input can be read.
    Main thread. */
bool doze (std::chrono::milliseconds longest, const std::vector<int>& descriptors, int input);

}
