#include "host/bench/window/GuiPump.h"

#include <JucePrivateParts.h>

bool pumpGui()
{
    bool worked = false;
    while (juce::dispatchNextMessageOnSystemQueue (true))
        worked = true;
    return worked;
}
