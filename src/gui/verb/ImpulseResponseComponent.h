#pragma once
#include "gui/verb/ImpulseResponseScale.h"
#include "gui/verb/OverlaidFills.h"
#include "reverb/Delgen.h"
#include "reverb/HalcyraParameters.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdint>

namespace lumo
{

/** Schematic impulse response: a line for the direct sound, for each early tap, and for each cluster delay on each
    early tap, with the decay of three bands behind. The wheel zooms the time axis; setters take times in ms. Derived
    values are computed at the next paint. Message thread. */
class ImpulseResponseComponent : public juce::Component
{
public:
    explicit ImpulseResponseComponent (std::uint32_t numinternals);

    void setTr0 (float seconds);
    void setTrl (float ratio);
    void setTrm (float ratio);
    void setTrh (float ratio);
    void setReverbStart (float ms);
    /** Clamped to the early end. */
    void setEarlyStart (float ms);
    /** Clamped to the early start. */
    void setEarlyEnd (float ms);
    void setEarlyDistr (float distribution);
    void setEarlyShape (float shape);
    /** Stored relative to the early stage at the time of the call; the cluster lasts at least 1 ms. */
    void setClusterStart (float ms);
    void setClusterEnd (float ms);
    void setClusterDistr (float distribution);

    [[nodiscard]] float getZoom() const noexcept { return zoom; }

    void paint (juce::Graphics& g) override;
    void resized() override;
    void mouseWheelMove (const juce::MouseEvent& e, const juce::MouseWheelDetails& wheel) override;
    /** A cursor key zooms like one wheel step. */
    bool keyPressed (const juce::KeyPress& key) override;

private:
    /** What a changed value invalidates. */
    enum Stale : unsigned
    {
        decay = 1,
        earlyDelays = 2,
        earlyGains = 4,
        clusterDelays = 8,
        ticks = 16
    };

    class ShownTime;

    void store (float& field, float value, unsigned makesStale);
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;
    [[nodiscard]] halcyra::ImpulseResponseScale scale() const noexcept;
    [[nodiscard]] juce::Point<float> decayCorner() const noexcept;
    [[nodiscard]] juce::Rectangle<int> decayExtent() const noexcept;
    [[nodiscard]] juce::Rectangle<int> coveredByDecay() const;
    void bringUpToDate (float pixelScale);
    /** At this many screen pixels per pixel. */
    void buildDecay (float pixelScale);
    void buildTicks();
    void paintGround (juce::Graphics& g) const;
    void paintDecay (juce::Graphics& g) const;
    void paintTicks (juce::Graphics& g) const;
    void paintTaps (juce::Graphics& g) const;

    HalcyraTimeStructure shown; // cluster times are relative to the early stage's once they have been set
    float zoom = halcyra::ImpulseResponseScale::defaultZoom;

    Ambrel::Delgen early, cluster;
    qel::Vector<float> gains; // of the early taps
    juce::Image decayImage;   // of decayArea, in screen pixels
    juce::Rectangle<int> decayArea;
    float decayPixelScale = 0;
    juce::GlyphArrangement tickTexts;
    unsigned stale = decay | earlyDelays | earlyGains | clusterDelays | ticks;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ImpulseResponseComponent)
};

}
