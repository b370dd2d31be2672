#pragma once
#include "gui/plane/view/StaticCache.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace halcyra
{

/** Grid of gains and frequencies behind a response curve. Static, so cached as an image at the screen's resolution. */
class HLShelfGrid : public juce::Component
{
public:
    static constexpr float fontHeight = 10;

    /** For the frequency labels, narrow enough to keep them apart. */
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
