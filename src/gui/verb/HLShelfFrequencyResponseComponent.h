#pragma once
#include "gui/plane/LumoComponent.h"
#include "gui/verb/HLShelfGrid.h"
#include "gui/verb/HLShelfResponse.h"
#include "gui/verb/HLShelfScale.h"

#include <vector>

namespace lumo
{

/** The response curve of one three-band filter, with five handles on it: the gains of the low, mid and high band, and
    the two crossover frequencies. Message thread. Setters ignore what is not finite. */
class HLShelfFrequencyResponseComponent : public Component
{
public:
    /** Hears of every change of the filter. */
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void filterChanged (HLShelfFrequencyResponseComponent* response) = 0;
        /** The key that closes the window was pressed. */
        virtual void filterClose() {}
    };

    explicit HLShelfFrequencyResponseComponent (const juce::String& name);

    /** Listeners hear in order of registration; null and a second add are ignored. Not owned. */
    void addListener (Listener* listener);
    void removeListener (Listener* listener);

    /** The filter as it was set; the design works on a clipped copy. */
    [[nodiscard]] const HLShelfParameters& getParameters() const noexcept { return parameters; }
    /** Does nothing for an equal filter, unless forced. */
    void setParameters (const HLShelfParameters& wish, bool notify, bool force);
    /** Sets one field, tells the listeners and repaints. */
    void setField (float HLShelfParameters::*field, float value);
    void setGlobalGain (float dB) { setField (&HLShelfParameters::G0, dB); }
    void setLowGain (float dB) { setField (&HLShelfParameters::Gl, dB); }
    void setMidGain (float dB) { setField (&HLShelfParameters::Gm, dB); }
    void setHighGain (float dB) { setField (&HLShelfParameters::Gh, dB); }
    void setLowFrequency (float hz) { setField (&HLShelfParameters::fl, hz); }
    void setHighFrequency (float hz) { setField (&HLShelfParameters::fh, hz); }
    /** Back to the defaults, and tells. */
    void reset();
    /** Tells the listeners of the close key. */
    void requestClose();

    /** The handle that was last pressed, -1 for none. */
    [[nodiscard]] int getSelectedHandle() const noexcept { return selectedHandle; }

    void resized() override;
    void paintOverChildren (juce::Graphics& g) override;
    void mouseDown (const juce::MouseEvent& e) override;
    void mouseDrag (const juce::MouseEvent& e) override;
    void mouseUp (const juce::MouseEvent& e) override;
    void mouseEnter (const juce::MouseEvent& e) override;
    void mouseExit (const juce::MouseEvent& e) override;
    void mouseWheelMove (const juce::MouseEvent& e, const juce::MouseWheelDetails& wheel) override;

private:
    enum Handle
    {
        none = -1,
        lowGain,
        midGain,
        highGain,
        lowFrequency,
        highFrequency,
        numHandles
    };

    template <typename Call>
    void tellListeners (Call&& tell);
    void changed (bool notify);
    [[nodiscard]] HLShelfScale scale() const noexcept;
    [[nodiscard]] juce::Point<double> handleCentre (int handle) const noexcept;
    [[nodiscard]] int handleRadius() const noexcept;
    [[nodiscard]] int handleAt (juce::Point<double> position) const noexcept;
    [[nodiscard]] juce::Path curve() const;
    void paintCurve (juce::Graphics& g) const;
    void paintHandles (juce::Graphics& g) const;

    HLShelfGrid grid;
    HLShelfResponse response;
    HLShelfParameters parameters;
    int selectedHandle = none;
    bool hovered = false; // by the events alone: they may come from elsewhere than the screen's pointer
    std::vector<Listener*> listeners;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HLShelfFrequencyResponseComponent)
};

}
