#include <juce_gui_basics/juce_gui_basics.cpp>

#if JUCE_LINUX
namespace juce
{

/** Says whether this process is the one in front, where no display says it: JUCE's tooltips and menus go by
    this flag, which only its X11 windows ever set. */
void setForegroundProcess (bool isForeground);
void setForegroundProcess (bool isForeground) { LinuxComponentPeer::isActiveApplication = isForeground; }

}
#endif
