#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** A frame around the control that the keyboard has reached, above all pages. It goes when the focus moves on by other
    means than the keyboard. Message thread. */
class FocusRing : public juce::Component, private juce::FocusChangeListener
{
public:
    FocusRing();
    ~FocusRing() override;

    /** Shows the frame around a component further in the same parent; null hides it. */
    void surround (juce::Component* control);

    void paint (juce::Graphics& g) override;

private:
    void globalFocusChanged (juce::Component* focused) override;

    juce::Component* surrounded = nullptr; // only compared

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FocusRing)
};

}
