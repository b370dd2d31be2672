#pragma once
#include "gui/verb/ValueLabel.h"

namespace halcyra
{

/** A slider with cursor keys and screen reader support: a key moves it by one step, with shift by ten. Screen readers
    get the text shown beside it. Message thread. */
class NumberSlider : public juce::Slider
{
public:
    NumberSlider (const juce::String& name, const ValueLabel& labelBeside);

    /** Called before and after each edit that is its own gesture, such as a key press. */
    std::function<void()> onGestureBoundary;

    /** Sets the value as one gesture. */
    void edit (double newValue);
    [[nodiscard]] juce::String shownText() const { return label.shownText(); }

    bool keyPressed (const juce::KeyPress& key) override;

private:
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    const ValueLabel& label;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (NumberSlider)
};

}
