#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

/** What we use of JUCE beside its interface. Another version may mean something else by it: look at each part that is
    named here, and at desktop::X11Window and desktop::OffscreenDesktop, before you let one in. */
static_assert (JUCE_VERSION == 0x70005, "JUCE's private parts were read in version 7.0.5");

namespace juce
{

/** One step of the message loop; false when there was nothing to do. */
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);

// The following stand beside what they name, in juce_gui_basics.cpp of this folder. Message thread.

/** The timer by which a tooltip window looks for the component under the pointer. */
[[nodiscard]] Timer& timerOf (TooltipWindow& window);

#if JUCE_LINUX
/** Says whether this process is the one in front, where no display says it: JUCE's tooltips and menus go by a flag
    that only its X11 windows ever set. */
void setForegroundProcess (bool isForeground);

/** A window's peer on the display that has no timer while nothing is painted. The caller owns it. */
[[nodiscard]] ComponentPeer* createRestingPeer (Component& component, int styleFlags);
#endif

}
