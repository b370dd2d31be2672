#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

/** The private parts of JUCE that we use. Before allowing another version, check each part named here,
    and desktop::X11Window and desktop::OffscreenDesktop. */
static_assert (JUCE_VERSION == 0x70005, "JUCE's private parts were read in version 7.0.5");

namespace juce
{

/** Runs one step of the message loop; false if there was nothing to do. */
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);

// Defined in juce_gui_basics.cpp of this folder. Message thread.

/** The timer with which a tooltip window polls for the component under the pointer. */
[[nodiscard]] Timer& timerOf (TooltipWindow& window);

#if JUCE_LINUX
/** Sets whether this process is in front, for when no display reports it: JUCE's tooltips and menus depend on a flag
    that only its X11 windows set. */
void setForegroundProcess (bool isForeground);

/** Creates a window's peer without a timer while nothing is painted. The caller owns it. */
[[nodiscard]] ComponentPeer* createRestingPeer (Component& component, int styleFlags);
#endif

}
