#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** A frame around the control focused by keyboard, above all pages. Hidden when the focus moves by any other means.
    Message thread. */
class FocusRing : public juce::Component, private juce::FocusChangeListener
{
public:
    FocusRing();
    ~FocusRing() override;

    /** Shows the frame around a component deeper in the same parent; null hides it. */
    void surround (juce::Component* control);

    void paint (juce::Graphics& g) override;

private:
    void globalFocusChanged (juce::Component* focused) override;

    juce::Component* surrounded = nullptr; // only compared, never dereferenced

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FocusRing)
};

}
