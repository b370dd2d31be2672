#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** The pages and their tabs. The tab key reaches a tab after its page's controls, and return switches to it; clicking a
    tab leaves the focus on the page. Message thread. */
class PageTabs : public juce::TabbedComponent
{
public:
    PageTabs();

    /** Takes ownership of the page; its title labels the tab and is announced by screen readers. */
    void addPage (const juce::String& title, juce::Colour colour, std::unique_ptr<juce::Component> page);

private:
    juce::TabBarButton* createTabButton (const juce::String& name, int index) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PageTabs)
};

}
