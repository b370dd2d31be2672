#pragma once
#include "gui/verb/HLShelfFrequencyResponseComponent.h"
#include "gui/verb/NumberSlider.h"
#include "gui/verb/SightWatcher.h"

#include <array>
#include <memory>

namespace lumo
{

/** One column of the filters page: the response curve of one filter above a slider per field. Sliders that are not
    showing update when they are shown again. Message thread. */
class HLShelfComponent : public Component,
                         private halcyra::ReverbModel::Listener,
                         private juce::Slider::Listener,
                         private juce::Button::Listener
{
public:
    HLShelfComponent (const juce::String& name, halcyra::ReverbModel& modelToShow, HalcyraFilter filterToShow);
    ~HLShelfComponent() override;

    [[nodiscard]] HLShelfFrequencyResponseComponent& getResponse() noexcept { return curve; }

    void resized() override;
    void paint (juce::Graphics& g) override;
    bool keyPressed (const juce::KeyPress& key) override;

    // A stand-alone column with its own filter. Only notify notifies.
    explicit HLShelfComponent (const juce::String& name);
    void setParameters (const HLShelfParameters& wish, bool notify, bool force)
    {
        curve.setParameters (wish, notify, force);
    }

private:
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::group);
    }

    struct Field
    {
        explicit Field (const halcyra::ShelfRow& row);
        halcyra::NumberSlider slider;
        juce::Label label;
        halcyra::ValueLabel value;
    };

    HLShelfComponent (const juce::String& name, std::unique_ptr<halcyra::SelfWakingModel> own);

    void reverbChanged (const halcyra::ReverbModel::Change& change) override;
    void sliderValueChanged (juce::Slider* slider) override;
    void sliderDragStarted (juce::Slider* slider) override;
    void sliderDragEnded (juce::Slider*) override { model.release(); }
    void buttonClicked (juce::Button* button) override;
    void makeGroup (juce::GroupComponent& group, const juce::String& text, juce::Colour outline);
    void makeField (const halcyra::ShelfRow& row);
    void sightChanged (bool isInSight);
    void showFields();
    void showField (std::size_t field);
    [[nodiscard]] std::size_t fieldOf (const juce::Slider* slider) const noexcept;

    std::unique_ptr<halcyra::SelfWakingModel> ownModel; // null inside a window
    halcyra::ReverbModel& model;
    const HalcyraFilter number;

    juce::GroupComponent title, frequencies, gains;
    HLShelfFrequencyResponseComponent curve;
    std::array<std::unique_ptr<Field>, halcyra::shelfTable.size()> fields;
    juce::TextButton reset{ "ResetButton" };
    bool stale = true;
    halcyra::SightWatcher sight;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HLShelfComponent)
};

}
