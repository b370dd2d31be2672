#include "gui/verb/TooltipWindow.h"

#include <JucePrivateParts.h>

namespace widgets
{

namespace
{

constexpr int interval = 123; // ms, JUCE's default

bool hasTip (juce::Component& component)
{
    auto* const client = dynamic_cast<juce::TooltipClient*> (&component);
    return client != nullptr && client->getTooltip().isNotEmpty();
}

}

TooltipWindow::TooltipWindow() : juce::TooltipWindow (nullptr, 2500)
{
    const juce::Colour background{ 0xFF808080 };
    look.setColour (backgroundColourId, background);
    setColour (backgroundColourId, background);
    setLookAndFeel (&look);
    rest();
}

TooltipWindow::~TooltipWindow() { setLookAndFeel (nullptr); }

void TooltipWindow::mouseEnter (const juce::MouseEvent& event)
{
    if (event.eventComponent == this)
        hideTip(); // the pointer entered the tip itself
    if (hasTip (*event.eventComponent))
        watch();
}

void TooltipWindow::mouseExit (const juce::MouseEvent& event)
{
    if (hasTip (*event.eventComponent)) {
        hideTip();
        rest();
    }
}

void TooltipWindow::watch()
{
    if (auto& timer = juce::timerOf (*this); ! timer.isTimerRunning()) {
        juce::Desktop::getInstance().addGlobalMouseListener (this); // a click anywhere dismisses the tip
        timer.startTimer (interval);
    }
}

void TooltipWindow::rest()
{
    juce::timerOf (*this).stopTimer();
    juce::Desktop::getInstance().removeGlobalMouseListener (this);
}

}
