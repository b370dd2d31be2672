#pragma once
#include "common/OrvaneDspListeners.h"
#include "gui/plane/LumoComponent.h"
#include "gui/verb/HLShelfGrid.h"
#include "gui/verb/SelfWakingModel.h"
#include "reverb/HLShelfResponse.h"
#include "reverb/HLShelfScale.h"

#include <memory>
#include <vector>

namespace lumo
{

/** Response curve of one of the model's filters, with five handles that edit it: the gains of the low, mid and high
    band and the two crossover frequencies. Message thread. */
class HLShelfFrequencyResponseComponent : public Component, private halcyra::ReverbModel::Listener
{
public:
    /** Receives every change of the filter. */
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void filterChanged (HLShelfFrequencyResponseComponent* response) = 0;
        /** The key that closes the window was pressed. */
        virtual void filterClose() {}
    };

    HLShelfFrequencyResponseComponent (const juce::String& name, halcyra::ReverbModel& modelToShow,
                                       HalcyraFilter filterToShow);
    ~HLShelfFrequencyResponseComponent() override;

    /** Listeners are called in order of registration; null and duplicates are ignored. Not owned. */
    void addListener (Listener* listener);
    void removeListener (Listener* listener);

    [[nodiscard]] const HLShelfParameters& getParameters() const { return model.filter (number); }
    /** Notifies the listeners of the close key. */
    void requestClose();

    // A stand-alone curve with its own filter; its setters are not user edits.
    explicit HLShelfFrequencyResponseComponent (const juce::String& name);
    void setParameters (const HLShelfParameters& wish, bool notify, bool force);
    void setGlobalGain (float dB) { setField (0, dB, halcyra::Edit::message); }
    void setLowGain (float dB) { setField (1, dB, halcyra::Edit::message); }
    void setMidGain (float dB) { setField (2, dB, halcyra::Edit::message); }
    void setHighGain (float dB) { setField (3, dB, halcyra::Edit::message); }
    void setLowFrequency (float hz) { setField (4, hz, halcyra::Edit::message); }
    void setHighFrequency (float hz) { setField (5, hz, halcyra::Edit::message); }
    void reset() { model.resetFilter (number, halcyra::Edit::message); }

    /** The handle last pressed; -1 for none. */
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

    HLShelfFrequencyResponseComponent (const juce::String& name, std::unique_ptr<halcyra::SelfWakingModel> own);

    void reverbChanged (const halcyra::ReverbModel::Change& change) override;
    void filterTold (HalcyraFilter told) override;
    void setField (std::size_t field, float value, halcyra::Edit edit);
    [[nodiscard]] halcyra::HLShelfScale scale() const noexcept;
    [[nodiscard]] juce::Point<double> handleCentre (int handle) const noexcept;
    [[nodiscard]] int handleRadius() const noexcept;
    [[nodiscard]] int handleAt (juce::Point<double> position) const noexcept;
    [[nodiscard]] juce::Path curve() const;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;
    void bringUpToDate();
    void paintCurve (juce::Graphics& g) const;
    void paintHandles (juce::Graphics& g) const;

    std::unique_ptr<halcyra::SelfWakingModel> ownModel; // null inside a window
    halcyra::ReverbModel& model;
    const HalcyraFilter number;

    halcyra::HLShelfGrid grid;
    HLShelfResponse response;
    bool stale = true; // recompute the response at the next paint
    int selectedHandle = none;
    bool hovered = false; // from mouse events alone: they need not come from the real pointer
    qel::ListenersInOrder<Listener> listeners;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HLShelfFrequencyResponseComponent)
};

}
