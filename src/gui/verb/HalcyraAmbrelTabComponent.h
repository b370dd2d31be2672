#pragma once
#include "gui/plane/PlaneComponent.h"

/** The page of the scene. Message thread. */
class HalcyraAmbrelTabComponent : public juce::Component
{
public:
    HalcyraAmbrelTabComponent (std::uint32_t numsources, std::uint32_t numspeakers);

    [[nodiscard]] lumo::PlaneComponent& getPlane() noexcept { return plane; }

    void resized() override;
    void paint (juce::Graphics& g) override;

private:
    lumo::PlaneComponent plane;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HalcyraAmbrelTabComponent)
};
