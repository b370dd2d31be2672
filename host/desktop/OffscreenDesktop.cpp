#define JUCE_GUI_BASICS_INCLUDE_XHEADERS 1
#include "host/desktop/OffscreenDesktop.h"

#include <JucePrivateParts.h>

#include <cstdlib>

namespace desktop
{

namespace offscreen
{

namespace
{

juce::Point<int>& pointer()
{
    static juce::Point<int> position;
    return position;
}

Bool answerPointer (::Display*, ::Window, ::Window* root, ::Window* child, int* rootX, int* rootY, int* x, int* y,
                    unsigned int* mask)
{
    *root = *child = 0;
    *rootX = *x = pointer().x;
    *rootY = *y = pointer().y;
    *mask = 0;
    return True;
}

void addScreen()
{
    juce::Displays::Display screen;
    screen.isMain = true;
    screen.totalArea = screen.userArea = { 0, 0, 1400, 900 };
    screen.scale = 1.0;
    screen.dpi = 96.0;

    const auto& displays = juce::Desktop::getInstance().getDisplays().displays;
    const_cast<juce::Array<juce::Displays::Display>&> (displays).add (screen);
}

}

void start()
{
    static const bool started = [] {
        // Without a name JUCE would try display 0; this one has no server.
        setenv ("DISPLAY", ":59999", 1);
        juce::MessageManager::getInstance();
        juce::Desktop::getInstance();
        juce::XWindowSystem::getInstance();
        juce::X11Symbols::getInstance()->xQueryPointer = answerPointer;
        addScreen();
        juce::setForegroundProcess (true);
        return true;
    }();
    juce::ignoreUnused (started);
}

void setPointer (juce::Point<int> position) { pointer() = position; }

}

}
