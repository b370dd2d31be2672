#include "host/desktop/OffscreenWindow.h"

#include "host/desktop/OffscreenPeer.h"

namespace desktop
{

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

    return std::make_unique<ShellInMemory> (*this, title);
}

}
