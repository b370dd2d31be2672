#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** The pages and their tabs. A tab is reached by keyboard after the controls of its page, and return turns to it; a
    click on one leaves the keyboard to the page. Message thread. */
class PageTabs : public juce::TabbedComponent
{
public:
    PageTabs();

    /** Takes the page; its title is its tab's, and what a screen reader calls it. */
    void addPage (const juce::String& title, juce::Colour colour, std::unique_ptr<juce::Component> page);

private:
    juce::TabBarButton* createTabButton (const juce::String& name, int index) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PageTabs)
};

}
