#pragma once
#include "gui/plane/PlaneComponent.h"

#include <memory>

/** The scene page. Message thread. */
class HalcyraAmbrelTabComponent : public juce::Component
{
public:
    /** Bounds of the plane, the page's only component. */
    static constexpr int planeX = 32, planeY = 24, planeSize = 350;

    explicit HalcyraAmbrelTabComponent (std::unique_ptr<lumo::PlaneComponent> planeToShow);

    void resized() override;
    void paint (juce::Graphics& g) override;

private:
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::group);
    }

    std::unique_ptr<lumo::PlaneComponent> plane;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HalcyraAmbrelTabComponent)
};
