#pragma once

namespace patchbench
{

/** True if windows can be put on a display. Apart from its use, since X11's macros and JUCE do not mix. */
bool canOpenDisplay();

}
