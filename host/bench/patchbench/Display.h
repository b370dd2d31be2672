#pragma once

namespace patchbench
{

/** Whether a display can be opened. In its own file, because X11's macros and JUCE do not mix. */
bool canOpenDisplay();

}
