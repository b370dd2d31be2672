#pragma once
#include "common/OrvaneDspListeners.h"
#include "gui/verb/HalcyraTimeStructureListener.h"
#include "gui/verb/ImpulseResponseComponent.h"
#include "gui/verb/NumberSlider.h"
#include "gui/verb/SelfWakingModel.h"
#include "gui/verb/SightWatcher.h"

#include <array>
#include <bitset>
#include <memory>
#include <vector>

/** The time structure page: a view of the model's parameters and room size. Controls show the model and edit it, but
    are never read back. While not showing it does not update; it catches up when shown again. Message thread. */
class HalcyraTimeStructureTabComponent : public juce::Component,
                                         private halcyra::ReverbModel::Listener,
                                         private juce::Slider::Listener,
                                         private juce::Button::Listener
{
public:
    HalcyraTimeStructureTabComponent (const juce::String& name, halcyra::ReverbModel& modelToShow);
    ~HalcyraTimeStructureTabComponent() override;

    void resized() override;
    void paint (juce::Graphics& g) override;

    // A stand-alone page with its own model. Only notification 1 notifies.
    HalcyraTimeStructureTabComponent (const juce::String& name, int numinternals);
    void addListener (lumo::HalcyraTimeStructureListener* listener) { listeners.add (listener); }
    void removeListener (lumo::HalcyraTimeStructureListener* listener) { listeners.remove (listener); }
    void getTimeStructure (HalcyraTimeStructure& out) const { out = model.parameters(); }
    void updateTimeStructureField (HalcyraTimeStructure& out, int parameter) const;
    void setParameter (HalcyraReverbParameter number, float value, int notification);
    void setRoomSize (float value, int notification);
    void setTimeStructure (const HalcyraTimeStructure& wish, int notification);
    void setDefaults() { setTimeStructure ({}, 1); }

private:
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::group);
    }

    /** A number: its slider and value label. */
    struct NumberControl
    {
        NumberControl (const juce::String& sliderName, halcyra::ValueLabel::Format format)
            : slider (sliderName, value), value (std::move (format))
        {}
        halcyra::NumberSlider slider;
        halcyra::ValueLabel value;
    };

    /** Repaints only its line and title: the contents repaint often. */
    struct Group : juce::GroupComponent
    {
        using GroupComponent::GroupComponent;
        void paint (juce::Graphics& g) override;
    };

    HalcyraTimeStructureTabComponent (const juce::String& name, std::unique_ptr<halcyra::SelfWakingModel> own);

    void reverbChanged (const halcyra::ReverbModel::Change& change) override;
    void parameterTold (HalcyraReverbParameter number) override;
    void sliderValueChanged (juce::Slider* slider) override;
    void sliderDragStarted (juce::Slider* slider) override { model.hold (cellOf (slider)); }
    void sliderDragEnded (juce::Slider*) override { model.release(); }
    void buttonClicked (juce::Button* button) override;
    void makeGroups();
    void makeControls();
    void makeRoomSize();
    void makeLabel (const juce::String& text, const juce::String& name, juce::Rectangle<int> box, float fontHeight,
                    bool onRight);
    void place (NumberControl& control, juce::Rectangle<int> sliderBox, juce::Rectangle<int> valueBox,
                int textBoxWidth);
    void addStop (juce::Component& control);
    void sightChanged (bool isShowing);
    void showStale();
    void show (halcyra::ReverbCell cell);
    void showStages();
    [[nodiscard]] halcyra::ReverbCell cellOf (const juce::Slider* slider) const noexcept;
    [[nodiscard]] NumberControl* controlOf (halcyra::ReverbCell cell) noexcept;
    [[nodiscard]] juce::ToggleButton* toggleOf (HalcyraReverbParameter number) noexcept;

    std::unique_ptr<halcyra::SelfWakingModel> ownModel; // null inside a window
    halcyra::ReverbModel& model;
    qel::Listeners<lumo::HalcyraTimeStructureListener> listeners;

    std::vector<std::unique_ptr<Group>> groups;
    std::vector<std::unique_ptr<juce::Label>> labels;
    lumo::ImpulseResponseComponent display;
    std::array<std::unique_ptr<NumberControl>, halcyra::parameter::count> numbers; // null for the switches
    NumberControl roomSize;
    juce::ToggleButton air{ "air" }, infinite{ "infinite" };
    juce::TextButton reset{ "ResetButton" };
    int numStops = 0; // of the tab key
    std::bitset<halcyra::cell::firstFilter> stale;
    halcyra::SightWatcher sight;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HalcyraTimeStructureTabComponent)
};
