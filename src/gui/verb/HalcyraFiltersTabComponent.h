#pragma once
#include "gui/verb/HLShelfComponent.h"

/** The filters page: direct, room, early and cluster side by side. Message thread. */
class HalcyraFiltersTabComponent : public juce::Component
{
public:
    HalcyraFiltersTabComponent (const juce::String& name, halcyra::ReverbModel& model);

    [[nodiscard]] lumo::HLShelfComponent& getShelf (HalcyraFilter filter)
    {
        return shelves[static_cast<std::size_t> (filter)];
    }

    void resized() override;
    void paint (juce::Graphics& g) override;

private:
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::group);
    }

    std::array<lumo::HLShelfComponent, 4> shelves;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HalcyraFiltersTabComponent)
};
