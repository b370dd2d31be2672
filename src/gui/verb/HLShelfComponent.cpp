#include "gui/verb/HLShelfComponent.h"

#include "gui/verb/EditorStyle.h"
#include "text/OrvaneDspUnitText.h"

namespace lumo
{

namespace
{

/** The left edges of one field's slider, label and value. */
struct FieldPlace
{
    int slider, label, value;
};

constexpr FieldPlace fieldPlaces[] = { { 15, 12, 12 },    { 44, 44, 44 },    { 76, 76, 76 },
                                       { 108, 108, 108 }, { 148, 148, 148 }, { 180, 180, 180 } };
static_assert (std::size (fieldPlaces) == halcyra::shelfTable.size());

const juce::Colour groupTextColour{ 0xFF545454 };

juce::String gainText (float dB) { return juce::String (qel::gainText (static_cast<double> (dB), true).c_str()); }
juce::String frequencyText (float hz)
{
    return juce::String (qel::frequencyText (static_cast<double> (hz), true).c_str());
}

}

HLShelfComponent::Field::Field (const halcyra::ShelfRow& row)
    : slider (row.name), label ({}, row.label), value (row.isFrequency ? frequencyText : gainText)
{
    editors::styleSlider (slider, juce::Slider::LinearVertical, 100);
    slider.setColour (juce::Slider::trackColourId, juce::Colour (0x7FFFFFFF));
    slider.setRange (row.sliderLowest, row.sliderHighest, row.step);
    slider.setDoubleClickReturnValue (true, row.doubleClick);
    if (row.midPoint > 0)
        slider.setSkewFactorFromMidPoint (row.midPoint);
    styleLabel (label, 11, juce::Justification::centred);
    styleLabel (value, 11, juce::Justification::centred);
    label.setBorderSize ({ 0, 0, 0, 0 });
    value.setBorderSize ({ 0, 1, 0, 1 });
}

HLShelfComponent::HLShelfComponent (const juce::String& name) : Component (name), curve (name)
{
    setOpaque (true);
    title.setColour (juce::GroupComponent::textColourId, juce::Colours::black);
    title.setName ("new group");
    title.setText (name);
    addAndMakeVisible (title);
    makeGroup (frequencies, "freqs", juce::Colour (0x30000000));
    makeGroup (gains, "gains", juce::Colour (0x2A000000));
    addAndMakeVisible (curve);
    for (const auto& row : halcyra::shelfTable)
        makeField (row);
    fields.front()->slider.setColour (juce::Slider::backgroundColourId, juce::Colour (0x00DB0000));
    reset.setButtonText ("reset");
    reset.addListener (this);
    addAndMakeVisible (reset);
    setSize (230, 386);

    curve.addListener (this);
    curve.reset();
    setWantsKeyboardFocus (true);
    curve.toFront (true);
}

HLShelfComponent::~HLShelfComponent() { curve.removeListener (this); }

void HLShelfComponent::makeGroup (juce::GroupComponent& group, const juce::String& text, juce::Colour outline)
{
    group.setName (text);
    group.setText (text);
    group.setTextLabelPosition (juce::Justification::centred);
    group.setColour (juce::GroupComponent::outlineColourId, outline);
    group.setColour (juce::GroupComponent::textColourId, groupTextColour);
    addAndMakeVisible (group);
}

void HLShelfComponent::makeField (const halcyra::ShelfRow& row)
{
    const auto index = static_cast<std::size_t> (&row - halcyra::shelfTable.data());
    const auto& place = fieldPlaces[index];
    auto& field = *(fields[index] = std::make_unique<Field> (row));
    field.slider.setBounds (place.slider, 204, 30, 110);
    field.label.setBounds (place.label, 180, 30, 24);
    field.value.setBounds (place.value, 316, 32, 24);
    field.slider.addListener (this);
    addAndMakeVisible (field.slider);
    addAndMakeVisible (field.label);
    addAndMakeVisible (field.value);
}

void HLShelfComponent::setParameters (const HLShelfParameters& wish, bool notify, bool force)
{
    if (! halcyra::isFinite (wish))
        return;
    if (! notify)
        show (halcyra::clipped (wish));
    curve.setParameters (wish, notify, force);
}

void HLShelfComponent::show (const HLShelfParameters& filter)
{
    for (const auto& row : halcyra::shelfTable) {
        auto& field = *fields[static_cast<std::size_t> (&row - halcyra::shelfTable.data())];
        const float value = filter.*row.value;
        field.slider.setValue (static_cast<double> (value), juce::dontSendNotification);
        field.value.show (value);
    }
}

void HLShelfComponent::filterChanged (HLShelfFrequencyResponseComponent* response) { show (response->getParameters()); }

void HLShelfComponent::sliderValueChanged (juce::Slider* slider)
{
    for (const auto& row : halcyra::shelfTable) {
        const auto& field = fields[static_cast<std::size_t> (&row - halcyra::shelfTable.data())];
        if (slider == &field->slider)
            return curve.setField (row.value, static_cast<float> (slider->getValue()));
    }
}

void HLShelfComponent::buttonClicked (juce::Button*) { curve.reset(); }

bool HLShelfComponent::keyPressed (const juce::KeyPress& key)
{
    if (key == juce::KeyPress ('w', juce::ModifierKeys::ctrlModifier, 0))
        curve.requestClose();
    return false;
}

void HLShelfComponent::resized()
{
    title.setBounds (0, 0, 224, 384);
    frequencies.setBounds (144, 168, 72, 176);
    gains.setBounds (8, 168, 136, 176);
    curve.setBounds (16, 16, 192, 150);
    reset.setBounds (8, 352, 56, 16);
}

void HLShelfComponent::paint (juce::Graphics& g) { g.fillAll (editors::pageColour); }

}
