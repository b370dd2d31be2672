#include "gui/verb/HLShelfGrid.h"

#include "gui/verb/EditorStyle.h"
#include "reverb/HLShelfScale.h"

namespace halcyra
{

namespace
{

const juce::Colour gridColour{ 0xFF808080 };

}

HLShelfGrid::HLShelfGrid()
{
    setOpaque (true);
    setInterceptsMouseClicks (false, false);
}

void HLShelfGrid::paint (juce::Graphics& g)
{
    picture.Draw (g, lumo::Plane::PixelGrid::Of (*this, g), true, [this] (juce::Graphics& onPicture) {
        onPicture.fillAll (halcyra::editors::pageColour);
        paintGains (onPicture);
        paintFrequencies (onPicture);
    });
}

void HLShelfGrid::resized() { picture.Resize (getWidth(), getHeight()); }

void HLShelfGrid::paintGains (juce::Graphics& g) const
{
    const HLShelfScale s{ static_cast<double> (getWidth()), static_cast<double> (getHeight()) };
    const auto width = static_cast<float> (getWidth());
    g.setFont (juce::Font (fontHeight));
    for (int dB = -25; dB <= 25; dB += 5) {
        const auto y = static_cast<float> (s.y (dB));
        g.setColour (gridColour.withAlpha (dB == 0 ? 0.6f : dB % 20 == 0 ? 0.4f : 0.2f));
        g.fillRect (juce::Rectangle<float> (0, y - 0.5f, width, 1));
        g.setColour (juce::Colours::black);
        g.drawFittedText (juce::String (dB), { 0, static_cast<int> (y) - 6, 20, 12 }, juce::Justification::right, 1);
    }
}

void HLShelfGrid::paintFrequencies (juce::Graphics& g) const
{
    const HLShelfScale s{ static_cast<double> (getWidth()), static_cast<double> (getHeight()) };
    const auto height = static_cast<float> (getHeight());
    g.setFont (frequencyFont());
    for (int decade = 10; decade <= 10000; decade *= 10)
        for (int i = 1; i <= 10; ++i) {
            const double hz = i * decade;
            if (hz <= HLShelfScale::lowestFrequency || hz > HLShelfScale::highestFrequency)
                continue;
            const double x = s.x (hz);
            g.setColour (gridColour.withAlpha (i == 10 ? 0.4f : 0.2f));
            g.fillRect (juce::Rectangle<float> (static_cast<float> (x) - 0.5f, 0, 1, height));
            if (i != 2 && i != 5 && i != 10)
                continue;
            const auto f = static_cast<float> (hz);
            const auto text = decade >= 1000 ? juce::String (f / 1000) + "k" : juce::String (f);
            if (x + 0.5 * static_cast<double> (g.getCurrentFont().getStringWidthFloat (text)) > s.width)
                continue; // would be cut at the edge
            g.setColour (gridColour.withAlpha (0.6f));
            g.drawFittedText (text, { static_cast<int> (x - 20), static_cast<int> (0.5f * height - 12), 40, 12 },
                              juce::Justification::centred, 1);
        }
}

}
