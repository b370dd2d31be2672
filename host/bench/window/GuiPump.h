#pragma once
#include <vector>

namespace bench
{

/** Runs JUCE's messages until its queue is empty, including messages posted meanwhile; returns whether there were any.
    JUCE must be initialised on this thread. */
bool pumpGui();

/** Descriptors that become readable when JUCE has work: its messages and the display's events. */
std::vector<int> guiDescriptors();

}
