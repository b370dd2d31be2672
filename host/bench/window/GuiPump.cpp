#include "host/bench/window/GuiPump.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace juce
{
// JUCE's own step of its message loop; false when there was nothing to do.
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);
}

void pumpGui()
{
    // Events of the window system may stand before the queue: a marker tells when the queue has been through.
    do {
        bool reached = false;
        juce::MessageManager::callAsync ([&reached] { reached = true; });
        while (! reached)
            juce::dispatchNextMessageOnSystemQueue (false);
    } while (juce::dispatchNextMessageOnSystemQueue (true));
}
