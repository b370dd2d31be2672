#pragma once
#include "gui/plane/Ambrel4LookAndFeel.h"

namespace widgets
{

/** The tooltip window for all our components, one per process. Polls the pointer only while it is over a component with
    a tip: to get tips, a component adds this as a mouse listener of all its children. Message thread. */
class TooltipWindow : public juce::TooltipWindow
{
public:
    TooltipWindow();
    ~TooltipWindow() override;

    void mouseEnter (const juce::MouseEvent& event) override;
    void mouseExit (const juce::MouseEvent& event) override;

private:
    void watch();
    void rest();

    Ambrel4LookAndFeelV2 look; // JUCE takes the tip's colour from the look, not from the window

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TooltipWindow)
};

}
