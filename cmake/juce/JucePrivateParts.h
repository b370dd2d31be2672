#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

/** What we use of JUCE beside its interface. Another version may mean something else by it: look at each part that is
    named here, and at X11Window and OffscreenDesktop, before you let one in. */
static_assert (JUCE_VERSION == 0x70005, "JUCE's private parts were read in version 7.0.5");

namespace juce
{

/** One step of the message loop; false when there was nothing to do. */
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);

/** Says whether this process is the one in front, where no display says it: JUCE's tooltips and menus go by a flag
    that only its X11 windows ever set. Defined beside them, by juce_gui_basics.cpp in this folder. */
void setForegroundProcess (bool isForeground);

}
