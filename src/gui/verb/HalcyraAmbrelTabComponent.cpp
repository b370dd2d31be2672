#include "gui/verb/HalcyraAmbrelTabComponent.h"

#include "gui/verb/EditorStyle.h"

HalcyraAmbrelTabComponent::HalcyraAmbrelTabComponent (std::uint32_t numsources, std::uint32_t numspeakers)
    : plane (numsources, numspeakers, 400)
{
    setOpaque (true);
    addAndMakeVisible (plane);
    setSize (920, 400);
}

void HalcyraAmbrelTabComponent::resized() { plane.setBounds (32, 24, 350, 350); }

void HalcyraAmbrelTabComponent::paint (juce::Graphics& g) { g.fillAll (editors::pageColour); }
