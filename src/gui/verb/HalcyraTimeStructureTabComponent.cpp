#include "gui/verb/HalcyraTimeStructureTabComponent.h"

#include "gui/verb/EditorStyle.h"
#include "gui/verb/HalcyraRoom.h"
#include "gui/verb/HalcyraTimeStructureLayout.h"

#include <iterator>

namespace
{

namespace parameter = halcyra::parameter;

constexpr double defaultRoomSize = 2000;

/** What the room size sets, in the order in which it tells of it. */
constexpr HalcyraReverbParameter roomParameters[] = { parameter::earlyStart,  parameter::earlyEnd,
                                                      parameter::earlyDistr,  parameter::clusterStart,
                                                      parameter::clusterEnd,  parameter::clusterDistr,
                                                      parameter::reverbStart, parameter::modalDensity };

/** The order in which a whole structure is set: each value finds room between those that stand by then. */
constexpr HalcyraReverbParameter settingOrder[] = {
    parameter::gain,         parameter::tr0,          parameter::trl,        parameter::trm,
    parameter::trh,          parameter::fl,           parameter::fh,         parameter::earlyStart,
    parameter::earlyEnd,     parameter::clusterStart, parameter::clusterEnd, parameter::reverbStart,
    parameter::earlyDistr,   parameter::earlyShape,   parameter::earlyWidth, parameter::clusterDistr,
    parameter::modalDensity, parameter::airFrequency, parameter::air,        parameter::infinite
};
static_assert (std::size (settingOrder) == parameter::count, "every parameter has its place");

using Display = lumo::ImpulseResponseComponent;

/** What the display draws of a parameter; null where it draws nothing. */
constexpr auto displaySetters()
{
    std::array<void (Display::*) (float), parameter::count> setters{};
    setters[parameter::tr0] = &Display::setTr0;
    setters[parameter::trl] = &Display::setTrl;
    setters[parameter::trm] = &Display::setTrm;
    setters[parameter::trh] = &Display::setTrh;
    setters[parameter::earlyStart] = &Display::setEarlyStart;
    setters[parameter::earlyEnd] = &Display::setEarlyEnd;
    setters[parameter::earlyDistr] = &Display::setEarlyDistr;
    setters[parameter::earlyShape] = &Display::setEarlyShape;
    setters[parameter::clusterStart] = &Display::setClusterStart;
    setters[parameter::clusterEnd] = &Display::setClusterEnd;
    setters[parameter::clusterDistr] = &Display::setClusterDistr;
    setters[parameter::reverbStart] = &Display::setReverbStart;
    return setters;
}

juce::NotificationType notificationType (int notification)
{
    return notification == 1 ? juce::sendNotification : juce::dontSendNotification;
}

juce::String roomText (float cubicMetres) { return juce::String (static_cast<int> (cubicMetres)) + " m^3"; }

lumo::ValueLabel::Format textOf (const halcyra::ParameterRow& row)
{
    return [&row] (float value) { return juce::String (value, row.decimals) + row.unit; };
}

void setRange (juce::Slider& slider, double lowest, double highest, double step, double midPoint, double doubleClick)
{
    slider.setRange (lowest, highest, step);
    // JUCE ignores a return value outside of the range, which is to lead to the near end.
    slider.setDoubleClickReturnValue (true, juce::jlimit (lowest, highest, doubleClick));
    if (midPoint > 0)
        slider.setSkewFactorFromMidPoint (midPoint);
}

}

HalcyraTimeStructureTabComponent::HalcyraTimeStructureTabComponent (const juce::String& name, int internals)
    : juce::Component (name),
      numinternals (internals),
      display (static_cast<std::uint32_t> (std::max (internals, 0))),
      roomSize ({}, roomText)
{
    setOpaque (true);
    setBufferedToImage (true); // most of the page stands still
    makeGroups();
    addAndMakeVisible (display);
    makeRoomSize();
    makeControls();
    reset.setButtonText ("Reset");
    reset.addListener (this);
    addAndMakeVisible (reset);
    setSize (920, 400);
    setDefaults();
}

HalcyraTimeStructureTabComponent::~HalcyraTimeStructureTabComponent() = default;

void HalcyraTimeStructureTabComponent::makeGroups()
{
    for (const auto& row : halcyra::timeStructureGroups) {
        auto& group = *groups.emplace_back (std::make_unique<juce::GroupComponent> (row.name, row.text));
        group.setColour (juce::GroupComponent::textColourId, juce::Colours::black);
        group.setBounds (row.box.rectangle());
        addAndMakeVisible (group);
    }
}

void HalcyraTimeStructureTabComponent::makeControls()
{
    for (const auto& where : halcyra::timeStructurePlaces) {
        const auto& row = *halcyra::parameterRow (where.number);
        makeLabel (row.label, where.labelName, where.label.rectangle(), where.labelFont, where.labelOnRight);
        if (auto* toggle = toggleOf (row.number)) {
            toggle->setTooltip (row.name);
            toggle->setButtonText ({});
            toggle->setBounds (where.control.rectangle());
            toggle->addListener (this);
            addAndMakeVisible (toggle);
            continue;
        }
        auto& number = numbers[static_cast<std::size_t> (row.number)];
        number = std::make_unique<NumberControl> (row.name, textOf (row));
        const bool isWide = row.number <= parameter::fh || row.number == parameter::airFrequency;
        place (*number, where.control.rectangle(), where.value.rectangle(), isWide ? 80 : 60);
        setRange (number->slider, row.lowest, row.highest, row.step, row.midPoint, row.doubleClick);
    }
    auto& gain = numbers[parameter::gain]->slider;
    gain.setSliderStyle (juce::Slider::LinearBar);
    gain.setColour (juce::Slider::backgroundColourId, editors::pageColour);
    gain.setColour (juce::Slider::trackColourId, juce::Colour (0x00DBDBDB));
}

void HalcyraTimeStructureTabComponent::makeRoomSize()
{
    makeLabel ("Room size", "RoomSizeLabel", halcyra::roomLabelBox.rectangle(), 12, true);
    place (roomSize, halcyra::roomSliderBox.rectangle(), halcyra::roomValueBox.rectangle(), 60);
    setRange (roomSize.slider, halcyra::smallestRoom, halcyra::largestRoom, 10, 0, defaultRoomSize);
}

void HalcyraTimeStructureTabComponent::makeLabel (const juce::String& text, const juce::String& name,
                                                  juce::Rectangle<int> box, float fontHeight, bool onRight)
{
    auto& label = *labels.emplace_back (std::make_unique<juce::Label>());
    lumo::styleLabel (label, fontHeight,
                      onRight ? juce::Justification::centredRight : juce::Justification::centredLeft);
    label.setName (name);
    label.setText (text, juce::dontSendNotification);
    label.setBounds (box);
    addAndMakeVisible (label);
}

void HalcyraTimeStructureTabComponent::place (NumberControl& control, juce::Rectangle<int> sliderBox,
                                              juce::Rectangle<int> valueBox, int textBoxWidth)
{
    editors::styleSlider (control.slider, juce::Slider::LinearHorizontal, textBoxWidth);
    control.slider.setBounds (sliderBox);
    control.slider.addListener (this);
    addAndMakeVisible (control.slider);

    lumo::styleLabel (control.value, 12, juce::Justification::centredLeft);
    control.value.setBorderSize ({ 1, 5, 1, 0 });
    control.value.setBounds (valueBox);
    addAndMakeVisible (control.value);
}

juce::ToggleButton* HalcyraTimeStructureTabComponent::toggleOf (HalcyraReverbParameter number)
{
    if (number == parameter::air)
        return &air;
    return number == parameter::infinite ? &infinite : nullptr;
}

float HalcyraTimeStructureTabComponent::present (HalcyraReverbParameter number) const
{
    return static_cast<float> (numbers[static_cast<std::size_t> (number)]->slider.getValue());
}

halcyra::StageTimes HalcyraTimeStructureTabComponent::stageTimes() const
{
    return { present (parameter::earlyStart), present (parameter::earlyEnd), present (parameter::clusterStart),
             present (parameter::clusterEnd) };
}

void HalcyraTimeStructureTabComponent::getTimeStructure (HalcyraTimeStructure& out) const
{
    for (const auto& row : halcyra::parameterTable)
        updateTimeStructureField (out, row.number);
}

void HalcyraTimeStructureTabComponent::updateTimeStructureField (HalcyraTimeStructure& out, int number) const
{
    const auto* row = halcyra::parameterRow (number);
    if (row == nullptr)
        return;
    if (row->isSwitch())
        out.*row->flag = (number == parameter::air ? air : infinite).getToggleState() ? 1 : 0;
    else
        out.*row->value = present (number);
}

void HalcyraTimeStructureTabComponent::setParameter (HalcyraReverbParameter number, float value, int notification)
{
    static constexpr auto toDisplay = displaySetters();

    const auto* row = halcyra::parameterRow (number);
    if (row == nullptr || ! std::isfinite (value))
        return;
    if (auto* toggle = toggleOf (number))
        return toggle->setToggleState (value != 0, notificationType (notification));

    auto& control = *numbers[static_cast<std::size_t> (number)];
    const float admitted = halcyra::limited (*row, value, stageTimes());
    control.slider.setValue (static_cast<double> (admitted), notificationType (notification));
    control.value.show (admitted);
    if (const auto set = toDisplay[static_cast<std::size_t> (number)])
        (display.*set) (admitted);
}

void HalcyraTimeStructureTabComponent::setRoomSize (float value, int notification)
{
    if (! std::isfinite (value))
        return;
    const float volume = std::clamp (value, halcyra::smallestRoom, halcyra::largestRoom);
    const auto room = halcyra::computeRoomParameters (numinternals, volume, present (parameter::tr0));
    setParameter (parameter::earlyStart, room.earlyStart, 0);
    setParameter (parameter::earlyEnd, room.earlyEnd, 0);
    setParameter (parameter::clusterStart, room.clusterStart, 0);
    setParameter (parameter::clusterEnd, room.clusterEnd, 0);
    setParameter (parameter::reverbStart, room.reverbStart, 0);
    setParameter (parameter::earlyDistr, room.earlyDistr, 0);
    setParameter (parameter::clusterDistr, room.clusterDistr, 0);
    setParameter (parameter::modalDensity, room.modalDensity, 0);
    roomSize.value.show (volume);
    roomSize.slider.setValue (static_cast<double> (volume), notificationType (notification));
}

void HalcyraTimeStructureTabComponent::setTimeStructure (const HalcyraTimeStructure& wish, int notification)
{
    setRoomSize (static_cast<float> (defaultRoomSize), 0);
    for (const auto number : settingOrder)
        setParameter (number, halcyra::valueOf (wish, *halcyra::parameterRow (number)), notification);
}

void HalcyraTimeStructureTabComponent::setDefaults() { setTimeStructure ({}, 1); }

void HalcyraTimeStructureTabComponent::tell (int number)
{
    listeners.call ([&] (lumo::HalcyraTimeStructureListener& l) { l.timeStructureChanged (this, number); });
}

void HalcyraTimeStructureTabComponent::sliderValueChanged (juce::Slider* slider)
{
    const auto value = static_cast<float> (slider->getValue());
    if (slider == &roomSize.slider) {
        setRoomSize (value, 0);
        for (const auto number : roomParameters)
            tell (number);
        return;
    }
    for (const auto& row : halcyra::parameterTable)
        if (const auto& control = numbers[static_cast<std::size_t> (row.number)];
            control != nullptr && slider == &control->slider) {
            setParameter (row.number, value, 0);
            return tell (row.number);
        }
}

void HalcyraTimeStructureTabComponent::buttonClicked (juce::Button* button)
{
    if (button == &reset)
        setDefaults();
    else if (button == &air)
        tell (parameter::air);
    else if (button == &infinite)
        tell (parameter::infinite);
}

void HalcyraTimeStructureTabComponent::resized()
{
    display.setBounds (halcyra::displayBox.rectangle());
    reset.setBounds (halcyra::resetBox.rectangle());
}

void HalcyraTimeStructureTabComponent::paint (juce::Graphics& g) { g.fillAll (editors::pageColour); }
