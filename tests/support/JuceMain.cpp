#include "host/bench/window/GuiPump.h"
#include "host/desktop/OffscreenDesktop.h"

#include <gmock/gmock.h>
#include <juce_gui_basics/juce_gui_basics.h>

/** Main of every test program that needs JUCE: initialises it once, without a display. */
int main (int argc, char** argv)
{
    testing::InitGoogleMock (&argc, argv);

    desktop::offscreen::start();
    const juce::ScopedJuceInitialiser_GUI juceEndsWithMain;
    const auto result = RUN_ALL_TESTS();
    juce::PopupMenu::dismissAllActiveMenus();
    bench::pumpGui();
    return result;
}
