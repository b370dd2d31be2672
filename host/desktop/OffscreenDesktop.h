#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace desktop
{

/** A desktop in memory, which replaces JUCE's display. */
namespace offscreen
{

/** Initialises JUCE on the calling thread without a real display, as the foreground application on a screen of 1400 by
    900 pixels at 96 dpi. Call before any other JUCE GUI function; later calls do nothing. */
void start();

/** Sets the pointer's position, in screen pixels. */
void setPointer (juce::Point<int> position);

}

}
