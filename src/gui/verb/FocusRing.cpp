#include "gui/verb/FocusRing.h"

namespace halcyra
{

namespace
{

constexpr int thickness = 2, distance = 3;
const juce::Colour ringColour{ 0xFF2A6DA5 };

}

FocusRing::FocusRing()
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
    juce::Desktop::getInstance().addFocusChangeListener (this);
}

FocusRing::~FocusRing() { juce::Desktop::getInstance().removeFocusChangeListener (this); }

void FocusRing::surround (juce::Component* control)
{
    surrounded = control;
    setVisible (control != nullptr);
    if (control == nullptr)
        return;
    auto* parent = getParentComponent();
    setBounds (parent->getLocalArea (control, control->getLocalBounds())
                   .expanded (distance)
                   .getIntersection (parent->getLocalBounds()));
    toFront (false);
}

void FocusRing::paint (juce::Graphics& g)
{
    g.setColour (ringColour);
    g.drawRect (getLocalBounds(), thickness);
}

void FocusRing::globalFocusChanged (juce::Component* focused)
{
    if (focused != surrounded)
        surround (nullptr);
}

}
