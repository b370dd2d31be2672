#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>

namespace halcyra
{

/** A label that shows a number. The text is made when it is drawn, so that a label in a closed window costs nothing.
    Message thread. */
class ValueLabel : public juce::Label
{
public:
    using Format = std::function<juce::String (float)>;

    explicit ValueLabel (Format numberToText);

    /** Repaints if the number differs. */
    void show (float number);
    /** What is drawn. */
    [[nodiscard]] juce::String shownText() const { return format (value); }

    void paint (juce::Graphics& g) override;

private:
    Format format;
    float value = 0;
    juce::String text;
    bool stale = true;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ValueLabel)
};

/** Gives a label the face that all labels of the editors share: its text is never cut above or below, even where the
    label is lower than its font. */
void styleLabel (juce::Label& label, float fontHeight, juce::Justification justification);

}
