#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace desktop
{

/** A desktop in memory: what JUCE asks of a display, answered without one. */
namespace offscreen
{

/** Starts JUCE on the calling thread, away from any real display, with one screen of 1400 by 900 pixels at
    96 dpi, as the application in front. Call it before anything else of JUCE's GUI; later calls do nothing. */
void start();

/** Where the pointer of this desktop stands, in pixels of the screen. */
void setPointer (juce::Point<int> position);

}

}
