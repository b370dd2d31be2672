#pragma once
#include "gui/plane/view/StaticCache.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** The grid of gains and frequencies behind a response curve. It never changes, and is kept as an image in
    the screen's own pixels. */
class HLShelfGrid : public juce::Component
{
public:
    static constexpr float fontHeight = 10;

    /** Of the texts of the frequencies, narrow enough that neighbours keep apart. */
    [[nodiscard]] static juce::Font frequencyFont() { return juce::Font (fontHeight).withHorizontalScale (0.8f); }

    HLShelfGrid();

    void paint (juce::Graphics& g) override;
    void resized() override;

private:
    void paintGains (juce::Graphics& g) const;
    void paintFrequencies (juce::Graphics& g) const;

    lumo::Plane::StaticCache picture;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HLShelfGrid)
};

}
