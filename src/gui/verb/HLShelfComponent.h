#pragma once
#include "gui/verb/HLShelfFrequencyResponseComponent.h"
#include "gui/verb/ValueLabel.h"

#include <array>
#include <memory>

namespace lumo
{

/** One column of the filters page: a response curve above a slider for each field, kept in step. Message thread. */
class HLShelfComponent : public Component,
                         private HLShelfFrequencyResponseComponent::Listener,
                         private juce::Slider::Listener,
                         private juce::Button::Listener
{
public:
    explicit HLShelfComponent (const juce::String& name);
    ~HLShelfComponent() override;

    [[nodiscard]] HLShelfFrequencyResponseComponent& getResponse() noexcept { return curve; }

    /** Sets curve, sliders and labels; only notify lets the curve's listeners hear. An equal filter does nothing unless
        forced, one that is not finite nothing at all. */
    void setParameters (const HLShelfParameters& wish, bool notify, bool force);

    void resized() override;
    void paint (juce::Graphics& g) override;
    bool keyPressed (const juce::KeyPress& key) override;

private:
    struct Field
    {
        explicit Field (const halcyra::ShelfRow& row);
        juce::Slider slider;
        juce::Label label;
        ValueLabel value;
    };

    void filterChanged (HLShelfFrequencyResponseComponent* response) override;
    void sliderValueChanged (juce::Slider* slider) override;
    void buttonClicked (juce::Button* button) override;
    void makeGroup (juce::GroupComponent& group, const juce::String& text, juce::Colour outline);
    void makeField (const halcyra::ShelfRow& row);
    void show (const HLShelfParameters& filter);

    juce::GroupComponent title, frequencies, gains;
    HLShelfFrequencyResponseComponent curve;
    std::array<std::unique_ptr<Field>, halcyra::shelfTable.size()> fields;
    juce::TextButton reset{ "ResetButton" };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HLShelfComponent)
};

}
