#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

/** What JUCE keeps to itself. Stands beside it, in the unit that compiles it. Message thread. */
namespace juce
{

/** The timer by which a tooltip window looks for the component under the pointer. */
[[nodiscard]] Timer& timerOf (TooltipWindow& window);

#if JUCE_LINUX
/** Says whether this process is the one in front, where no display says it: JUCE's tooltips and menus go by this
    flag, which only its X11 windows ever set. */
void setForegroundProcess (bool isForeground);

/** A window's peer on the display that has no timer while nothing is painted. The caller owns it. */
[[nodiscard]] ComponentPeer* createRestingPeer (Component& component, int styleFlags);
#endif

}
