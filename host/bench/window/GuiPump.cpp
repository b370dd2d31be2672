#include "host/bench/window/GuiPump.h"

#include <juce_events/juce_events.h>

#include <juce_events/native/juce_linux_EventLoopInternal.h>

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

std::vector<int> guiDescriptors() { return juce::LinuxEventLoopInternal::getRegisteredFds(); }
