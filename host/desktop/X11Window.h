#pragma once

#include "host/desktop/JuceWindow.h"

namespace desktop
{

/** A window on the X11 display, with or without a window manager. */
class X11Window : public JuceWindow
{
public:
    void setTitle (const juce::String& title) override;

    /** Whether the display named in the environment can be opened. */
    static bool isDisplayAvailable();

private:
    std::unique_ptr<Shell> makeShell (const juce::String& title) override;
};

}
