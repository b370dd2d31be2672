#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>

namespace halcyra
{

/** A label that shows a number. Formats it only when drawn, so that labels in a closed window cost nothing. Message
    thread. */
class ValueLabel : public juce::Label
{
public:
    using Format = std::function<juce::String (float)>;

    explicit ValueLabel (Format numberToText);

    /** Sets the number and repaints if it changed. */
    void show (float number);
    /** The text as drawn. */
    [[nodiscard]] juce::String shownText() const { return format (value); }

    void paint (juce::Graphics& g) override;

private:
    Format format;
    float value = 0;
    juce::String text;
    bool stale = true;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ValueLabel)
};

/** Gives a label the editors' common style: text is never clipped above or below, even if the label is lower than its
    font. */
void styleLabel (juce::Label& label, float fontHeight, juce::Justification justification);

}
