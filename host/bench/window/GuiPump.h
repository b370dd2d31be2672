#pragma once
#include <vector>

namespace bench
{

/** Runs JUCE's messages until its queue is empty, messages posted meanwhile included; true if there was any.
    JUCE has been started on this thread. */
bool pumpGui();

/** What can be read when JUCE has something to run: its messages, and the display's events. */
std::vector<int> guiDescriptors();

}
