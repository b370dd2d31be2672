#include "gui/verb/ValueLabel.h"

#include <utility>

namespace halcyra
{

ValueLabel::ValueLabel (Format numberToText) : format (std::move (numberToText))
{
    setMinimumHorizontalScale (0.5f); // squeeze a long number in a narrow label instead of truncating it
}

void ValueLabel::show (float number)
{
    if (value == number)
        return;
    value = number;
    stale = true;
    if (auto* parent = getParentComponent())
        parent->repaint (getBounds().expanded (0, 3)); // letters extend beyond a label that is lower than its font
}

void ValueLabel::paint (juce::Graphics& g)
{
    if (std::exchange (stale, false))
        text = format (value);
    g.setColour (findColour (textColourId));
    g.setFont (getFont());
    g.drawFittedText (text, getBorderSize().subtractedFrom (getLocalBounds()), getJustificationType(), 1,
                      getMinimumHorizontalScale());
}

void styleLabel (juce::Label& label, float fontHeight, juce::Justification justification)
{
    label.setName ("new label");
    label.setFont (juce::Font (fontHeight));
    label.setJustificationType (justification);
    label.setEditable (false, false, false);
    label.setColour (juce::TextEditor::textColourId, juce::Colours::black);
    label.setColour (juce::TextEditor::backgroundColourId, juce::Colour (0x00000000));
    label.setPaintingIsUnclipped (true);
    label.setInterceptsMouseClicks (false, false);
    label.setAccessible (false); // the control beside it has its name and value
}

}
