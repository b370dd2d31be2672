#pragma once
#include "gui/plane/Ambrel4LookAndFeel.h"

namespace widgets
{

/** The window that shows the tips of all our components; one serves the whole process. It polls the pointer while that
    is over a component with a tip, and has no timer otherwise: to be served, a component adds it as a mouse listener of
    all its children. Message thread. */
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

    Ambrel4LookAndFeelV2 look; // JUCE asks the look, not the window, for the tip's colour

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TooltipWindow)
};

}
