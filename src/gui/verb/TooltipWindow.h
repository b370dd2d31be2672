#pragma once
#include "gui/plane/Ambrel4LookAndFeel.h"

namespace widgets
{

/** The window that shows the tips of all our components; one serves the whole process. Message thread. */
class TooltipWindow : public juce::TooltipWindow
{
public:
    TooltipWindow();
    ~TooltipWindow() override;

private:
    Ambrel4LookAndFeelV2 look; // JUCE asks the look, not the window, for the tip's colour

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TooltipWindow)
};

}
