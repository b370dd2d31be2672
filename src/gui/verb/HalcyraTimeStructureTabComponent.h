#pragma once
#include "common/OrvaneDspListeners.h"
#include "gui/verb/HalcyraLimits.h"
#include "gui/verb/HalcyraTimeStructureListener.h"
#include "gui/verb/ImpulseResponseComponent.h"
#include "gui/verb/ValueLabel.h"

#include <array>
#include <memory>
#include <vector>

/** The page of the reverberator's time structure: early, cluster and late stage on one time axis, the decay times, and a
    room size that derives them all. It keeps the values in a legal order. Message thread.

    A setter's notification is 1 for JUCE's sendNotification, anything else for none: a notifying one tells the listeners
    when JUCE's messages are next run, a switch at once. Setters ignore numbers that are not finite. */
class HalcyraTimeStructureTabComponent : public juce::Component,
                                         private juce::Slider::Listener,
                                         private juce::Button::Listener
{
public:
    HalcyraTimeStructureTabComponent (const juce::String& name, int numinternals);
    ~HalcyraTimeStructureTabComponent() override;

    void addListener (lumo::HalcyraTimeStructureListener* listener) { listeners.add (listener); }
    void removeListener (lumo::HalcyraTimeStructureListener* listener) { listeners.remove (listener); }

    /** Reads all fields from the controls. */
    void getTimeStructure (HalcyraTimeStructure& out) const;
    /** Reads one; a number that is none reads none. */
    void updateTimeStructureField (HalcyraTimeStructure& out, int parameter) const;

    /** Sets one control by its number, within the limits that its neighbours leave. */
    void setParameter (HalcyraReverbParameter number, float value, int notification);
    /** Sets all times and densities to those of a room of that volume, in cubic metres. */
    void setRoomSize (float value, int notification);
    /** Sets all fields, in an order in which each finds room between its neighbours. */
    void setTimeStructure (const HalcyraTimeStructure& wish, int notification);
    void setDefaults();

    void resized() override;
    void paint (juce::Graphics& g) override;

private:
    /** One number: its slider, and what shows its value. */
    struct NumberControl
    {
        NumberControl (const juce::String& sliderName, lumo::ValueLabel::Format format)
            : slider (sliderName), value (std::move (format))
        {}
        juce::Slider slider;
        lumo::ValueLabel value;
    };

    void sliderValueChanged (juce::Slider* slider) override;
    void buttonClicked (juce::Button* button) override;
    void makeGroups();
    void makeControls();
    void makeRoomSize();
    void makeLabel (const juce::String& text, const juce::String& name, juce::Rectangle<int> box, float fontHeight,
                    bool onRight);
    void place (NumberControl& control, juce::Rectangle<int> sliderBox, juce::Rectangle<int> valueBox,
                int textBoxWidth);
    void tell (int parameter);
    [[nodiscard]] float present (HalcyraReverbParameter number) const;
    [[nodiscard]] halcyra::StageTimes stageTimes() const;
    [[nodiscard]] juce::ToggleButton* toggleOf (HalcyraReverbParameter number);

    const int numinternals;
    qel::Listeners<lumo::HalcyraTimeStructureListener> listeners;

    std::vector<std::unique_ptr<juce::GroupComponent>> groups;
    std::vector<std::unique_ptr<juce::Label>> labels;
    lumo::ImpulseResponseComponent display;
    std::array<std::unique_ptr<NumberControl>, halcyra::parameter::count> numbers; // null for the switches
    NumberControl roomSize;
    juce::ToggleButton air{ "air" }, infinite{ "infinite" };
    juce::TextButton reset{ "ResetButton" };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HalcyraTimeStructureTabComponent)
};
