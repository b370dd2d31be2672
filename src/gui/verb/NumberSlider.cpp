#include "gui/verb/NumberSlider.h"

namespace halcyra
{

namespace
{

constexpr int stepsWithShift = 10;

/** 1 for up and right, -1 for down and left; 0 for any other key. */
int directionOf (int keyCode)
{
    if (keyCode == juce::KeyPress::rightKey || keyCode == juce::KeyPress::upKey)
        return 1;
    return keyCode == juce::KeyPress::leftKey || keyCode == juce::KeyPress::downKey ? -1 : 0;
}

/** Parses the number at the start of a text such as "4 kHz". */
double numberIn (const juce::String& text)
{
    const double number = text.trimStart().trimCharactersAtStart ("+").getDoubleValue();
    return text.containsIgnoreCase ("khz") ? 1000 * number : number;
}

class SpokenValue : public juce::AccessibilityValueInterface
{
public:
    explicit SpokenValue (NumberSlider& sliderToSpeakFor) : slider (sliderToSpeakFor) {}

    bool isReadOnly() const override { return false; }
    double getCurrentValue() const override { return slider.getValue(); }
    juce::String getCurrentValueAsString() const override { return slider.shownText(); }
    void setValue (double newValue) override { slider.edit (newValue); }
    void setValueAsString (const juce::String& newValue) override { slider.edit (numberIn (newValue)); }
    AccessibleValueRange getRange() const override
    {
        return { { slider.getMinimum(), slider.getMaximum() }, slider.getInterval() };
    }

private:
    NumberSlider& slider;
};

}

NumberSlider::NumberSlider (const juce::String& name, const ValueLabel& labelBeside)
    : juce::Slider (name), label (labelBeside)
{
    setWantsKeyboardFocus (true);
}

void NumberSlider::edit (double newValue)
{
    if (onGestureBoundary)
        onGestureBoundary();
    setValue (newValue, juce::sendNotificationSync);
    if (onGestureBoundary)
        onGestureBoundary();
}

bool NumberSlider::keyPressed (const juce::KeyPress& key)
{
    const auto modifiers = key.getModifiers();
    const int direction = directionOf (key.getKeyCode());
    if (direction == 0 || modifiers.isCtrlDown() || modifiers.isAltDown() || modifiers.isCommandDown())
        return false;
    edit (getValue() + direction * (modifiers.isShiftDown() ? stepsWithShift : 1) * getInterval());
    return true;
}

std::unique_ptr<juce::AccessibilityHandler> NumberSlider::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (
        *this, juce::AccessibilityRole::slider, juce::AccessibilityActions{},
        juce::AccessibilityHandler::Interfaces{ std::make_unique<SpokenValue> (*this) });
}

}
