#include "support/SpokenTree.h"
#include "gui/verb/HalcyraComponent.h"
#include "host/bench/window/GuiPump.h"
#include "max/window/NativeWindow.h"

#include <cstdio>

/** A window on the display drawn by OpenGL: prints what a screen reader gets on each page, one line each. Exits with 1
    if a control lacks something. */
int main()
{
    orvanemax::startJuceInHost();
    const juce::ScopedJuceInitialiser_GUI juceEndsWithMain;
    HalcyraComponent component{ 2, 2, 8 };
    const auto window = orvanemax::makePlatformWindow();
    window->create ("Halcyra", { 40, 60, 930, 440 });
    window->attach (&component);
    window->show();
    component.SetOpenGLEnabled (true);
    bench::pumpGui();

    bool isWhole = component.IsOpenGLEnabled() && component.getAccessibilityHandler() != nullptr;
    auto& tabs = *dynamic_cast<juce::TabbedComponent*> (component.getChildComponent (0));
    for (int page = 0; isWhole && page < tabs.getNumTabs(); ++page) {
        tabs.setCurrentTabIndex (page);
        bench::pumpGui();
        auto& root = *component.getAccessibilityHandler();
        spoken::walk (root, [&] (const juce::AccessibilityHandler& handler) {
            std::printf ("%d %s %s: %s\n", page, spoken::nameOf (handler.getRole()), handler.getTitle().toRawUTF8(),
                         spoken::valueOf (handler).toRawUTF8());
        });
        for (const auto& gap : spoken::gapsBelow (root)) {
            std::printf ("%d lacks %s\n", page, gap.c_str());
            isWhole = false;
        }
    }
    component.SetOpenGLEnabled (false);
    window->destroy();
    return isWhole ? 0 : 1;
}
