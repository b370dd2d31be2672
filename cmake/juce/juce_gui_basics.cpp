#include <juce_gui_basics/juce_gui_basics.cpp>

#include "JucePrivateParts.h"

#if JUCE_LINUX
namespace juce
{

void setForegroundProcess (bool isForeground) { LinuxComponentPeer::isActiveApplication = isForeground; }

}
#endif
