#pragma once

#include "host/desktop/JuceWindow.h"

namespace desktop
{

/** A window in memory: no display, but the same component, events and pixels. Call offscreen::start() first.
    Menus open inside the window. */
class OffscreenWindow : public JuceWindow
{
private:
    std::unique_ptr<Shell> makeShell (const juce::String& title) override;
};

}
