#include "gui/verb/TooltipWindow.h"

namespace widgets
{

TooltipWindow::TooltipWindow() : juce::TooltipWindow (nullptr, 2500)
{
    const juce::Colour background{ 0xFF808080 };
    look.setColour (backgroundColourId, background);
    setColour (backgroundColourId, background);
    setLookAndFeel (&look);
}

TooltipWindow::~TooltipWindow() { setLookAndFeel (nullptr); }

}
