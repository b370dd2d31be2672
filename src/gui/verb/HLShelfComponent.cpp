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

juce::String spokenFilter (const juce::String& name)
{
    return name.substring (0, 1).toUpperCase() + name.substring (1) + " filter";
}

juce::String gainText (float dB) { return juce::String (qel::gainText (static_cast<double> (dB), true).c_str()); }
juce::String frequencyText (float hz)
{
    return juce::String (qel::frequencyText (static_cast<double> (hz), true).c_str());
}

}

HLShelfComponent::Field::Field (const halcyra::ShelfRow& row)
    : slider (row.name, value), label ({}, row.label), value (row.isFrequency ? frequencyText : gainText)
{
    halcyra::editors::styleSlider (slider, juce::Slider::LinearVertical, 100);
    slider.setColour (juce::Slider::trackColourId, juce::Colour (0x7FFFFFFF));
    slider.setRange (row.range.lowest, row.range.highest, row.range.step);
    slider.setDoubleClickReturnValue (true, row.defaultValue());
    if (row.midPoint > 0)
        slider.setSkewFactorFromMidPoint (row.midPoint);
    halcyra::styleLabel (label, 11, juce::Justification::centred);
    halcyra::styleLabel (value, 11, juce::Justification::centred);
    label.setBorderSize ({ 0, 0, 0, 0 });
    value.setBorderSize ({ 0, 1, 0, 1 });
}

HLShelfComponent::HLShelfComponent (const juce::String& name)
    : HLShelfComponent (name, std::make_unique<halcyra::SelfWakingModel> (0))
{}

HLShelfComponent::HLShelfComponent (const juce::String& name, std::unique_ptr<halcyra::SelfWakingModel> own)
    : HLShelfComponent (name, *own, 0)
{
    ownModel = std::move (own);
}

HLShelfComponent::HLShelfComponent (const juce::String& name, halcyra::ReverbModel& modelToShow,
                                    HalcyraFilter filterToShow)
    : Component (name),
      model (modelToShow),
      number (filterToShow),
      curve (name, modelToShow, filterToShow),
      sight (*this, [this] (bool isInSight) { sightChanged (isInSight); })
{
    setOpaque (true);
    setTitle (spokenFilter (name));
    setFocusContainerType (FocusContainerType::focusContainer);
    title.setColour (juce::GroupComponent::textColourId, juce::Colours::black);
    title.setName ("new group");
    title.setText (name);
    title.setAccessible (false);
    addAndMakeVisible (title);
    makeGroup (frequencies, "freqs", juce::Colour (0x30000000));
    makeGroup (gains, "gains", juce::Colour (0x2A000000));
    addAndMakeVisible (curve);
    for (const auto& row : halcyra::shelfTable)
        makeField (row);
    fields.front()->slider.setColour (juce::Slider::backgroundColourId, juce::Colour (0x00DB0000));
    reset.setButtonText ("reset");
    reset.setTitle ("Reset the " + name + " filter");
    reset.addListener (this);
    addAndMakeVisible (reset);
    setSize (230, 386);

    showFields();
    setWantsKeyboardFocus (true);
    curve.toFront (true);
    model.addListener (this);
}

HLShelfComponent::~HLShelfComponent() { model.removeListener (this); }

void HLShelfComponent::makeGroup (juce::GroupComponent& group, const juce::String& text, juce::Colour outline)
{
    group.setAccessible (false);
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
    field.slider.setTitle (spokenFilter (getName()) + ", " + row.spoken);
    field.slider.setHelpText ("message: " + getName() + " " + row.name);
    field.slider.addListener (this);
    field.slider.onGestureBoundary = [this] { model.boundGesture(); };
    addAndMakeVisible (field.slider);
    addAndMakeVisible (field.label);
    addAndMakeVisible (field.value);
}

void HLShelfComponent::reverbChanged (const halcyra::ReverbModel::Change& change)
{
    if (change.cell < halcyra::cell::ofFilter (number, 0) || change.cell >= halcyra::cell::ofFilter (number + 1, 0))
        return;
    if (isShowing())
        showField (static_cast<std::size_t> (change.cell - halcyra::cell::ofFilter (number, 0)));
    else
        stale = true;
}

void HLShelfComponent::sightChanged (bool isInSight)
{
    if (! isInSight)
        model.release(); // a press still open when the window went out of sight
    else if (stale)
        showFields();
}

void HLShelfComponent::showFields()
{
    stale = false;
    for (std::size_t i = 0; i < fields.size(); ++i)
        showField (i);
}

void HLShelfComponent::showField (std::size_t field)
{
    const float value = model.filter (number).*halcyra::shelfTable[field].value;
    fields[field]->slider.setValue (static_cast<double> (value), juce::dontSendNotification);
    fields[field]->value.show (value);
}

std::size_t HLShelfComponent::fieldOf (const juce::Slider* slider) const noexcept
{
    std::size_t index = 0;
    while (index + 1 < fields.size() && slider != &fields[index]->slider)
        ++index;
    return index;
}

void HLShelfComponent::sliderValueChanged (juce::Slider* slider)
{
    model.setFilterField (number, fieldOf (slider), static_cast<float> (slider->getValue()), halcyra::Edit::hand);
}

void HLShelfComponent::sliderDragStarted (juce::Slider* slider)
{
    model.hold (halcyra::cell::ofFilter (number, fieldOf (slider)));
}

void HLShelfComponent::buttonClicked (juce::Button*)
{
    model.boundGesture(); // for key presses; the mouse has already ended its gesture
    model.resetFilter (number, halcyra::Edit::hand);
}

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

void HLShelfComponent::paint (juce::Graphics& g) { g.fillAll (halcyra::editors::pageColour); }

}
