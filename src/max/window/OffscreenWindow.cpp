#include "max/window/OffscreenWindow.h"

#include "max/window/OffscreenDesktop.h"
#include "max/window/OffscreenPeer.h"

std::unique_ptr<JuceWindow::Shell> OffscreenWindow::makeShell (const juce::String& title)
{
    struct ShellInMemory : Shell
    {
        using Shell::Shell;
        juce::ComponentPeer* createNewPeer (int styleFlags, void*) override
        {
            return new OffscreenPeer (*this, styleFlags);
        }
    };

    auto made = std::make_unique<ShellInMemory> (*this, title);
    made->getProperties().set (OffscreenDesktop::menusOpenInside, true);
    return made;
}
