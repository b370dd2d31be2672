#include "host/bench/window/GuiPump.h"

namespace juce
{
// JUCE's own step of its message loop; false when there was nothing to do.
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);
}

bool pumpGui()
{
    bool worked = false;
    while (juce::dispatchNextMessageOnSystemQueue (true))
        worked = true;
    return worked;
}
