#include "gui/plane/Ambrel4LookAndFeel.h"

#include <gtest/gtest.h>

namespace
{

template <typename Look>
class Ambrel4Look : public testing::Test
{
protected:
    Ambrel4Look() { slider.setLookAndFeel (&look); }
    ~Ambrel4Look() override { slider.setLookAndFeel (nullptr); }

    /** The slider, drawn on white. */
    juce::Image drawn()
    {
        juce::Image image (juce::Image::RGB, slider.getWidth(), slider.getHeight(), true);
        juce::Graphics g (image);
        g.fillAll (juce::Colours::white);
        slider.paintEntireComponent (g, true);
        return image;
    }

    Look look;
    juce::Slider slider;
};

using Looks = testing::Types<Ambrel4LookAndFeelV2, Ambrel4LookAndFeelV3>;
TYPED_TEST_SUITE (Ambrel4Look, Looks, );

TYPED_TEST (Ambrel4Look, HasItsColours)
{
    EXPECT_EQ (this->look.findColour (juce::TextButton::buttonColourId), juce::Colour (0xFF909090));
    EXPECT_EQ (this->look.findColour (juce::TooltipWindow::backgroundColourId), juce::Colour (0xFFBDBDBD));
    EXPECT_EQ (this->look.findColour (juce::ComboBox::outlineColourId), juce::Colour (0xFF000000));
}

TYPED_TEST (Ambrel4Look, MakesTextBoxesThatShowABarBeneath)
{
    this->slider.setColour (juce::Slider::textBoxBackgroundColourId, juce::Colours::red);
    this->slider.setSliderStyle (juce::Slider::LinearHorizontal);
    const std::unique_ptr<juce::Label> opaque (this->look.createSliderTextBox (this->slider));
    EXPECT_EQ (opaque->findColour (juce::Label::backgroundColourId), juce::Colours::red);
    EXPECT_EQ (opaque->getFont().getHeight(), 12);
    this->slider.setSliderStyle (juce::Slider::LinearBar);
    const std::unique_ptr<juce::Label> clear (this->look.createSliderTextBox (this->slider));
    EXPECT_TRUE (clear->findColour (juce::Label::backgroundColourId).isTransparent());
    EXPECT_EQ (clear->findColour (juce::TextEditor::backgroundColourId), juce::Colours::red.withAlpha (0.7f));
}

TYPED_TEST (Ambrel4Look, DrawsABarUpToItsValue)
{
    this->slider.setTextBoxStyle (juce::Slider::NoTextBox, false, 0, 0);
    this->slider.setSliderStyle (juce::Slider::LinearBar);
    this->slider.setColour (juce::Slider::thumbColourId, juce::Colour (0xFF545454));
    this->slider.setColour (juce::Slider::backgroundColourId, juce::Colours::white);
    this->slider.setSize (100, 10);
    this->slider.setRange (0, 1, 0);
    for (const double value : { 0.0, 0.5, 1.0 }) {
        this->slider.setValue (value, juce::dontSendNotification);
        const auto image = this->drawn();
        for (const int x : { 10, 40, 60, 90 })
            EXPECT_EQ (image.getPixelAt (x, 5).getBrightness() < 0.6f, x < 100 * value) << value << " at " << x;
    }
}

TYPED_TEST (Ambrel4Look, DrawsAThumbWhereTheValueIs)
{
    this->slider.setTextBoxStyle (juce::Slider::NoTextBox, false, 0, 0);
    this->slider.setSliderStyle (juce::Slider::LinearVertical);
    this->slider.setColour (juce::Slider::thumbColourId, juce::Colours::red);
    this->slider.setSize (30, 110);
    this->slider.setRange (0, 1, 0);
    for (const double value : { 0.0, 1.0 }) {
        this->slider.setValue (value, juce::dontSendNotification);
        const auto image = this->drawn();
        const auto isRed = [&] (int y) { return image.getPixelAt (15, y).getSaturation() > 0.5f; };
        EXPECT_EQ (isRed (8), value == 1.0);
        EXPECT_EQ (isRed (102), value == 0.0);
    }
}

TYPED_TEST (Ambrel4Look, DrawsRotarySlidersOfAnySize)
{
    this->slider.setTextBoxStyle (juce::Slider::NoTextBox, false, 0, 0);
    this->slider.setSliderStyle (juce::Slider::Rotary);
    this->slider.setColour (juce::Slider::rotarySliderFillColourId, juce::Colours::red);
    this->slider.setRange (0, 1, 0);
    this->slider.setValue (1, juce::dontSendNotification);
    for (const int size : { 60, 20, 4, 1 }) {
        this->slider.setSize (size, size);
        const auto image = this->drawn();
        bool red = false;
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                red = red || image.getPixelAt (x, y).getSaturation() > 0.3f;
        EXPECT_EQ (red, size > 4) << size;
    }
}

TEST (RoundedPath, RoundsTheCornersThatAreAskedFor)
{
    Ambrel4::Corners corners;
    corners.topRight = false;
    const auto path = Ambrel4::roundedPath ({ 10, 20, 40, 30 }, 8, corners);
    EXPECT_EQ (path.getBounds(), juce::Rectangle<float> (10, 20, 40, 30));
    EXPECT_FALSE (path.contains (11, 21));
    EXPECT_TRUE (path.contains (49, 21)) << "the square one";
    EXPECT_FALSE (path.contains (49, 49));
    EXPECT_FALSE (path.contains (11, 49));
    EXPECT_TRUE (Ambrel4::roundedPath ({ 0, 0, 10, 10 }, 0).contains (0.1f, 9.9f)) << "no size leaves square corners";
}

}
