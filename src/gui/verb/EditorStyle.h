#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

/** Style shared by the window's pages. Message thread. */
namespace halcyra::editors
{

/** Background of each page. */
inline const juce::Colour pageColour{ 0xFFDBDBDB };

/** Styles a slider without a text box, grey on the page. */
inline void styleSlider (juce::Slider& slider, juce::Slider::SliderStyle style, int textBoxWidth)
{
    slider.setSliderStyle (style);
    slider.setTextBoxStyle (juce::Slider::NoTextBox, false, textBoxWidth, 20);
    slider.setColour (juce::Slider::thumbColourId, juce::Colour (0xFF545454));
    slider.setColour (juce::Slider::textBoxBackgroundColourId, pageColour);
    slider.setColour (juce::Slider::textBoxOutlineColourId, pageColour);
}

}
