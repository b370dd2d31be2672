#include "gui/verb/HalcyraFiltersTabComponent.h"

#include "gui/verb/EditorStyle.h"

HalcyraFiltersTabComponent::HalcyraFiltersTabComponent (const juce::String& name, halcyra::ReverbModel& model)
    : juce::Component (name),
      shelves{ lumo::HLShelfComponent (halcyra::filterNames[0], model, 0),
               lumo::HLShelfComponent (halcyra::filterNames[1], model, 1),
               lumo::HLShelfComponent (halcyra::filterNames[2], model, 2),
               lumo::HLShelfComponent (halcyra::filterNames[3], model, 3) }
{
    setOpaque (true);
    for (auto& shelf : shelves)
        addAndMakeVisible (shelf);
    setSize (920, 400);
}

void HalcyraFiltersTabComponent::resized()
{
    int x = 8;
    for (auto& shelf : shelves) {
        shelf.setBounds (x, 8, 230, 386);
        x += 224;
    }
}

void HalcyraFiltersTabComponent::paint (juce::Graphics& g) { g.fillAll (halcyra::editors::pageColour); }
