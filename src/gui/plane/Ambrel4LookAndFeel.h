#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

/** The grey look of our components: colours and drawing functions shared by both looks. Message thread. */
namespace Ambrel4
{

/** Sets a look's colours. */
void setColours (juce::LookAndFeel& look);

/** Creates the label that shows and edits a slider's value; the caller owns it. */
[[nodiscard]] juce::Label* createSliderTextBox (juce::Slider& slider);

/** A linear slider in bar style: a shaded bar up to the slider's position. */
void drawBarSlider (juce::Graphics& g, juce::Rectangle<float> area, float position, bool vertical,
                    juce::Slider& slider);

/** A rotary slider. The proportion is 0 at the start angle and 1 at the end angle; angles in radians. */
void drawRotarySlider (juce::Graphics& g, juce::Rectangle<int> area, float proportion, float startAngle, float endAngle,
                       juce::Slider& slider);

/** Which corners of a rounded path are rounded; the others are square. */
struct Corners
{
    bool topLeft = true, topRight = true, bottomLeft = true, bottomRight = true;
};

/** A closed path along a rectangle; the corner arcs have a diameter of twice the corner size. */
[[nodiscard]] juce::Path roundedPath (juce::Rectangle<float> area, float cornerSize, Corners round = {});

/** A shape with a vertical gradient and a dark rim; strength is 0 to 1. */
void drawShadedShape (juce::Graphics& g, const juce::Path& shape, juce::Colour base, float strength);

/** A round slider thumb. */
void drawThumb (juce::Graphics& g, juce::Point<float> centre, float radius, juce::Slider& slider);

/** Where a menu opens: on the desktop (null), or in the window itself if it has no native handle. */
[[nodiscard]] juce::Component* menuParent (const juce::PopupMenu::Options& options);

/** Text height of sliders and labels. */
inline constexpr float textHeight = 12.0f;

}

/** The overrides common to both looks; the base draws everything else. */
template <typename Base>
class Ambrel4LookAndFeel : public Base
{
public:
    Ambrel4LookAndFeel() { Ambrel4::setColours (*this); }

    juce::Label* createSliderTextBox (juce::Slider& slider) override { return Ambrel4::createSliderTextBox (slider); }
    juce::Component* getParentComponentForMenuOptions (const juce::PopupMenu::Options& options) override
    {
        return Ambrel4::menuParent (options);
    }
    juce::Font getSliderPopupFont (juce::Slider&) override { return { Ambrel4::textHeight }; }
    void drawLinearSlider (juce::Graphics& g, int x, int y, int width, int height, float position, float least,
                           float greatest, juce::Slider::SliderStyle style, juce::Slider& slider) override
    {
        const bool vertical = style == juce::Slider::LinearBarVertical;
        if (const auto background = slider.findColour (juce::Slider::backgroundColourId); ! background.isTransparent())
            g.fillAll (background);
        if (vertical || style == juce::Slider::LinearBar) {
            const juce::Rectangle<int> area (x, y, width, height);
            return Ambrel4::drawBarSlider (g, area.toFloat(), position, vertical, slider);
        }
        this->drawLinearSliderBackground (g, x, y, width, height, position, least, greatest, style, slider);
        this->drawLinearSliderThumb (g, x, y, width, height, position, least, greatest, style, slider);
    }
    void drawLinearSliderThumb (juce::Graphics& g, int x, int y, int width, int height, float position, float least,
                                float greatest, juce::Slider::SliderStyle style, juce::Slider& slider) override
    {
        const float radius = static_cast<float> (this->getSliderThumbRadius (slider)) - 2.0f;
        const juce::Rectangle<float> area = juce::Rectangle<int> (x, y, width, height).toFloat();
        if (style == juce::Slider::LinearHorizontal)
            return Ambrel4::drawThumb (g, { position, area.getCentreY() }, radius, slider);
        if (style == juce::Slider::LinearVertical)
            return Ambrel4::drawThumb (g, { area.getCentreX(), position }, radius, slider);
        Base::drawLinearSliderThumb (g, x, y, width, height, position, least, greatest, style, slider);
    }
    void drawRotarySlider (juce::Graphics& g, int x, int y, int width, int height, float proportion, float startAngle,
                           float endAngle, juce::Slider& slider) override
    {
        Ambrel4::drawRotarySlider (g, { x, y, width, height }, proportion, startAngle, endAngle, slider);
    }
    void drawButtonBackground (juce::Graphics& g, juce::Button& button, const juce::Colour& background,
                               bool highlighted, bool down) override
    {
        const float dim = button.isEnabled() ? 1.0f : 0.5f;
        const auto base = background.withMultipliedAlpha (dim).brighter (highlighted && ! down ? 0.1f : 0.0f);
        const Ambrel4::Corners corners{ ! (button.isConnectedOnLeft() || button.isConnectedOnTop()),
                                        ! (button.isConnectedOnRight() || button.isConnectedOnTop()),
                                        ! (button.isConnectedOnLeft() || button.isConnectedOnBottom()),
                                        ! (button.isConnectedOnRight() || button.isConnectedOnBottom()) };
        const auto area = button.getLocalBounds().toFloat().reduced (0.5f);
        Ambrel4::drawShadedShape (g, Ambrel4::roundedPath (area, 4.0f, corners), down ? base.darker (0.2f) : base,
                                  0.5f);
    }

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Ambrel4LookAndFeel)
};

/** The default look, based on JUCE's V2. */
class Ambrel4LookAndFeelV2 : public Ambrel4LookAndFeel<juce::LookAndFeel_V2>
{};

/** The same, based on JUCE's V3. */
class Ambrel4LookAndFeelV3 : public Ambrel4LookAndFeel<juce::LookAndFeel_V3>
{};
