#include "gui/verb/HalcyraAmbrelTabComponent.h"

#include "gui/verb/EditorStyle.h"

HalcyraAmbrelTabComponent::HalcyraAmbrelTabComponent (std::unique_ptr<lumo::PlaneComponent> planeToShow)
    : plane (std::move (planeToShow))
{
    setOpaque (true);
    addAndMakeVisible (*plane);
    setSize (920, 400);
}

void HalcyraAmbrelTabComponent::resized() { plane->setBounds (planeX, planeY, planeSize, planeSize); }

void HalcyraAmbrelTabComponent::paint (juce::Graphics& g) { g.fillAll (halcyra::editors::pageColour); }
