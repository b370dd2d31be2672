#include "host/bench/window/GuiPump.h"

#include <JucePrivateParts.h>
#include <juce_events/native/juce_linux_EventLoopInternal.h>

namespace bench
{

bool pumpGui()
{
    bool worked = false;
    while (juce::dispatchNextMessageOnSystemQueue (true))
        worked = true;
    return worked;
}

std::vector<int> guiDescriptors() { return juce::LinuxEventLoopInternal::getRegisteredFds(); }

}
