#include "gui/verb/HalcyraComponent.h"

#include "gui/verb/HalcyraAmbrelTabComponent.h"
#include "gui/verb/HalcyraFiltersTabComponent.h"
#include "gui/verb/HalcyraTimeStructureTabComponent.h"

namespace
{

const juce::Colour frameColour{ 0xFFA4A4A4 };
const juce::Colour tabColour{ 0xFFD3D3D3 };

}

HalcyraComponent::HalcyraComponent (std::uint32_t sources, std::uint32_t speakers, std::uint32_t internals)
    : numsources (sources),
      numspeakers (speakers),
      numinternals (internals),
      tabs (std::make_unique<juce::TabbedComponent> (juce::TabbedButtonBar::TabsAtTop))
{
    setOpaque (true);
    addAndMakeVisible (*tabs);
    tabs->setTabBarDepth (30);
    setSize (930, 440);
    makePages();
    timeStructureTab->getTimeStructure (parameters);
    plane->SetRepaintMode (0);
    resetAll();
    setWantsKeyboardFocus (true);
    addMouseListener (tooltipWindow, true);
}

void HalcyraComponent::makePages()
{
    auto timeStructure =
        std::make_unique<HalcyraTimeStructureTabComponent> ("HalcyraTimeStructure", static_cast<int> (numinternals));
    auto filters = std::make_unique<HalcyraFiltersTabComponent> ("HalcyraFilters");
    auto viewer = std::make_unique<HalcyraAmbrelTabComponent> (numsources, numspeakers);
    timeStructureTab = timeStructure.get();
    filtersTab = filters.get();
    plane = &viewer->getPlane();

    timeStructureTab->addListener (this);
    for (std::size_t i = 0; i < responses.size(); ++i) {
        responses[i] = &filtersTab->getShelf (static_cast<HalcyraFilter> (i)).getResponse();
        responses[i]->addListener (this);
    }
    plane->AddListener (this);

    tabs->addTab ("Time Structure", tabColour, timeStructure.release(), true);
    tabs->addTab ("filters", tabColour, filters.release(), true);
    tabs->addTab ("Ambrel", tabColour, viewer.release(), true);
}

HalcyraComponent::~HalcyraComponent()
{
    timeStructureTab->removeListener (this);
    plane->RemoveListener (this);
    for (auto* response : responses)
        response->removeListener (this);
}

void HalcyraComponent::addListener (Listener* listener) { listeners.add (listener); }
void HalcyraComponent::removeListener (Listener* listener) { listeners.remove (listener); }

void HalcyraComponent::sendAllParameters()
{
    for (std::uint32_t source = 0; source < numsources; ++source)
        listeners.call ([&] (Listener& l) { l.HalcyraSourceChanged (static_cast<int> (source)); });
    for (HalcyraFilter filter = 0; filter < static_cast<int> (responses.size()); ++filter)
        listeners.call ([&] (Listener& l) { l.HalcyraFilterChanged (filter); });
    for (const auto& row : halcyra::parameterTable)
        listeners.call ([&] (Listener& l) { l.HalcyraReverbChanged (row.number); });
    listeners.call ([] (Listener& l) { l.HalcyraSpeakersChanged(); });
    listeners.call ([] (Listener& l) { l.HalcyraViewerOptionsChanged(); });
}

void HalcyraComponent::resetAll()
{
    for (auto* response : responses)
        response->reset();
    timeStructureTab->setDefaults();
}

// ---- The host's settings

float HalcyraComponent::reverbParameter (HalcyraReverbParameter number) const noexcept
{
    const auto* row = halcyra::parameterRow (number);
    return row == nullptr ? 0.0f : halcyra::valueOf (parameters, *row);
}

void HalcyraComponent::setReverbParameter (HalcyraReverbParameter number, float value)
{
    timeStructureTab->setParameter (number, value, 1);
}

void HalcyraComponent::setRoomSize (float value, int notification)
{
    timeStructureTab->setRoomSize (value, notification);
}

const HLShelfParameters& HalcyraComponent::getFilter (HalcyraFilter filter) const
{
    return responses.at (static_cast<std::size_t> (filter))->getParameters();
}

void HalcyraComponent::setFilter (HalcyraFilter filter, const HLShelfParameters& wish, bool notify)
{
    if (filter >= 0 && filter < static_cast<int> (responses.size()))
        filtersTab->getShelf (filter).setParameters (wish, notify, false);
}

qel::Point3 HalcyraComponent::getSourcePosition (int index) const
{
    return plane->GetSourcePosition (static_cast<std::size_t> (index));
}

void HalcyraComponent::getSpeakerPositions (qel::Point3Array& out) const
{
    out.resize (numspeakers);
    for (std::size_t i = 0; i < out.size(); ++i)
        out[i] = plane->GetSpeakerPosition (i);
}

// ---- Edits in the window

void HalcyraComponent::timeStructureChanged (HalcyraTimeStructureTabComponent* tab, const int& parameter)
{
    if (tab != timeStructureTab)
        return;
    timeStructureTab->updateTimeStructureField (parameters, parameter);
    listeners.call ([&] (Listener& l) { l.HalcyraReverbChanged (parameter); });
}

void HalcyraComponent::filterChanged (lumo::HLShelfFrequencyResponseComponent* response)
{
    for (std::size_t i = 0; i < responses.size(); ++i)
        if (response == responses[i])
            return listeners.call ([&] (Listener& l) { l.HalcyraFilterChanged (static_cast<HalcyraFilter> (i)); });
}

void HalcyraComponent::SourcePositionChanged (std::size_t index, const qel::Point3&)
{
    listeners.call ([&] (Listener& l) { l.HalcyraSourceChanged (static_cast<int> (index)); });
}

void HalcyraComponent::SpeakersPositionsChanged (const qel::Point3Array&)
{
    listeners.call ([] (Listener& l) { l.HalcyraSpeakersChanged(); });
}

void HalcyraComponent::OptionsChanged (lumo::PlaneBase&)
{
    listeners.call ([] (Listener& l) { l.HalcyraViewerOptionsChanged(); });
}

bool HalcyraComponent::keyPressed (const juce::KeyPress& key)
{
    if (key == juce::KeyPress ('w', juce::ModifierKeys::ctrlModifier, 0))
        listeners.call ([] (Listener& l) { l.HalcyraCloseRequested(); });
    return false; // the key travels on to the parent
}

// ---- Drawing

void HalcyraComponent::resized() { tabs->setBounds (5, 6, 920, 430); }

void HalcyraComponent::paint (juce::Graphics& g)
{
    BeginPaintTiming();
    if (isVisible())
        g.fillAll (frameColour);
}

void HalcyraComponent::paintOverChildren (juce::Graphics& g)
{
    EndPaintTiming(); // so that the figures count the pages too
    lumo::Component::paintOverChildren (g);
}
