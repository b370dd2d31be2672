#include "gui/verb/PageTabs.h"

namespace halcyra
{

namespace
{

class PageTab : public juce::TabBarButton
{
public:
    PageTab (const juce::String& name, juce::TabbedButtonBar& bar) : TabBarButton (name, bar)
    {
        setWantsKeyboardFocus (true);
        setMouseClickGrabsKeyboardFocus (false);
    }

private:
    class Handler : public juce::AccessibilityHandler
    {
    public:
        explicit Handler (PageTab& tabToSpeakFor)
            : AccessibilityHandler (
                  tabToSpeakFor, juce::AccessibilityRole::radioButton,
                  juce::AccessibilityActions()
                      .addAction (juce::AccessibilityActionType::press, [&] { tabToSpeakFor.turn(); })
                      .addAction (juce::AccessibilityActionType::toggle, [&] { tabToSpeakFor.turn(); })),
              tab (tabToSpeakFor)
        {}
        juce::String getTitle() const override { return tab.getButtonText(); }
        juce::AccessibleState getCurrentState() const override
        {
            const auto state = AccessibilityHandler::getCurrentState().withCheckable();
            return tab.isFrontTab() ? state.withChecked() : state;
        }

    private:
        PageTab& tab;
    };

    void turn() { getTabbedButtonBar().setCurrentTabIndex (getIndex()); }
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<Handler> (*this);
    }
};

}

PageTabs::PageTabs() : TabbedComponent (juce::TabbedButtonBar::TabsAtTop)
{
    auto& bar = getTabbedButtonBar();
    bar.setTitle ("Pages");
    for (auto* decoration : bar.getChildren())
        decoration->setAccessible (false);
    bar.setFocusContainerType (FocusContainerType::focusContainer);
    bar.setMouseClickGrabsKeyboardFocus (false);
    bar.setExplicitFocusOrder (2);
}

void PageTabs::addPage (const juce::String& title, juce::Colour colour, std::unique_ptr<juce::Component> page)
{
    page->setTitle (title);
    page->setFocusContainerType (FocusContainerType::focusContainer);
    page->setExplicitFocusOrder (1);
    addTab (title, colour, page.release(), true);
}

juce::TabBarButton* PageTabs::createTabButton (const juce::String& name, int)
{
    return new PageTab (name, getTabbedButtonBar());
}

std::unique_ptr<juce::AccessibilityHandler> PageTabs::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::ignored);
}

}
