#include "gui/verb/HalcyraTimeStructureTabComponent.h"

#include "gui/verb/EditorStyle.h"
#include "gui/verb/HalcyraTimeStructureLayout.h"

namespace
{

namespace parameter = halcyra::parameter;
namespace cell = halcyra::cell;
using halcyra::Edit;

using Display = lumo::ImpulseResponseComponent;

/** The display's setter per parameter; null if it draws nothing, and for the stages, which are set together. */
constexpr auto displaySetters()
{
    std::array<void (Display::*) (float), parameter::count> setters{};
    setters[parameter::tr0] = &Display::setTr0;
    setters[parameter::trl] = &Display::setTrl;
    setters[parameter::trm] = &Display::setTrm;
    setters[parameter::trh] = &Display::setTrh;
    setters[parameter::earlyDistr] = &Display::setEarlyDistr;
    setters[parameter::earlyShape] = &Display::setEarlyShape;
    setters[parameter::clusterDistr] = &Display::setClusterDistr;
    setters[parameter::reverbStart] = &Display::setReverbStart;
    return setters;
}

constexpr bool isStageTime (HalcyraReverbParameter number)
{
    return number == parameter::earlyStart || number == parameter::earlyEnd || number == parameter::clusterStart ||
           number == parameter::clusterEnd;
}

Edit editOf (int notification) { return notification == 1 ? Edit::message : Edit::quiet; }

juce::String roomText (float cubicMetres) { return juce::String (static_cast<int> (cubicMetres)) + " m^3"; }

halcyra::ValueLabel::Format textOf (const halcyra::ParameterRow& row)
{
    return [&row] (float value) { return juce::String (value, row.decimals) + row.unit; };
}

void setRange (juce::Slider& slider, const halcyra::SliderRange& range, double midPoint, double doubleClick)
{
    slider.setRange (range.lowest, range.highest, range.step);
    // JUCE ignores a return value outside the range; it should go to the near end.
    slider.setDoubleClickReturnValue (true, juce::jlimit (range.lowest, range.highest, doubleClick));
    if (midPoint > 0)
        slider.setSkewFactorFromMidPoint (midPoint);
}

}

HalcyraTimeStructureTabComponent::HalcyraTimeStructureTabComponent (const juce::String& name, int numinternals)
    : HalcyraTimeStructureTabComponent (name, std::make_unique<halcyra::SelfWakingModel> (numinternals))
{}

HalcyraTimeStructureTabComponent::HalcyraTimeStructureTabComponent (const juce::String& name,
                                                                    std::unique_ptr<halcyra::SelfWakingModel> own)
    : HalcyraTimeStructureTabComponent (name, *own)
{
    ownModel = std::move (own);
}

HalcyraTimeStructureTabComponent::HalcyraTimeStructureTabComponent (const juce::String& name,
                                                                    halcyra::ReverbModel& modelToShow)
    : juce::Component (name),
      model (modelToShow),
      display (static_cast<std::uint32_t> (std::max (model.numInternals(), 0))),
      roomSize ({}, roomText),
      sight (*this, [this] (bool isShowing) { sightChanged (isShowing); })
{
    setOpaque (true);
    setWantsKeyboardFocus (true); // otherwise a click would focus the first switch, and the space bar would toggle it
    makeGroups();
    addStop (display);
    makeRoomSize();
    makeControls();
    reset.setButtonText ("Reset");
    reset.setTitle ("Reset the time structure");
    reset.addListener (this);
    addStop (reset);
    setSize (920, 400);
    stale.set();
    showStale();
    model.addListener (this);
}

HalcyraTimeStructureTabComponent::~HalcyraTimeStructureTabComponent() { model.removeListener (this); }

void HalcyraTimeStructureTabComponent::makeGroups()
{
    for (const auto& row : halcyra::timeStructureGroups) {
        auto& group = *groups.emplace_back (std::make_unique<Group> (row.name, row.text));
        group.setColour (juce::GroupComponent::textColourId, juce::Colours::black);
        group.setBounds (row.box.rectangle());
        group.setAccessible (false); // the controls' own names say where they belong
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
            toggle->setTitle (row.spoken);
            toggle->addListener (this);
            addStop (*toggle);
            continue;
        }
        auto& number = numbers[static_cast<std::size_t> (row.number)];
        number = std::make_unique<NumberControl> (row.name, textOf (row));
        number->slider.setTitle (row.spoken);
        number->slider.setHelpText (juce::String ("message: ") + row.selector + " " + row.key);
        const bool isWide = row.number <= parameter::fh || row.number == parameter::airFrequency;
        place (*number, where.control.rectangle(), where.value.rectangle(), isWide ? 80 : 60);
        setRange (number->slider, row.range, row.midPoint, row.doubleClick());
    }
    auto& gain = numbers[parameter::gain]->slider;
    gain.setSliderStyle (juce::Slider::LinearBar);
    gain.setColour (juce::Slider::backgroundColourId, halcyra::editors::pageColour);
    gain.setColour (juce::Slider::trackColourId, juce::Colour (0x00DBDBDB));
}

void HalcyraTimeStructureTabComponent::makeRoomSize()
{
    makeLabel ("Room size", "RoomSizeLabel", halcyra::roomLabelBox.rectangle(), 12, true);
    roomSize.slider.setTitle ("Room size");
    roomSize.slider.setHelpText ("Derives the times of all stages from a volume.");
    place (roomSize, halcyra::roomSliderBox.rectangle(), halcyra::roomValueBox.rectangle(), 60);
    setRange (roomSize.slider, halcyra::roomRange, 0, static_cast<double> (halcyra::defaultRoomSize));
}

void HalcyraTimeStructureTabComponent::makeLabel (const juce::String& text, const juce::String& name,
                                                  juce::Rectangle<int> box, float fontHeight, bool onRight)
{
    auto& label = *labels.emplace_back (std::make_unique<juce::Label>());
    halcyra::styleLabel (label, fontHeight,
                         onRight ? juce::Justification::centredRight : juce::Justification::centredLeft);
    label.setName (name);
    label.setText (text, juce::dontSendNotification);
    label.setBounds (box);
    addAndMakeVisible (label);
}

void HalcyraTimeStructureTabComponent::place (NumberControl& control, juce::Rectangle<int> sliderBox,
                                              juce::Rectangle<int> valueBox, int textBoxWidth)
{
    halcyra::editors::styleSlider (control.slider, juce::Slider::LinearHorizontal, textBoxWidth);
    control.slider.setBounds (sliderBox);
    control.slider.addListener (this);
    control.slider.onGestureBoundary = [this] { model.boundGesture(); };
    addStop (control.slider);

    halcyra::styleLabel (control.value, 12, juce::Justification::centredLeft);
    control.value.setBorderSize ({ 1, 5, 1, 0 });
    control.value.setBounds (valueBox);
    addAndMakeVisible (control.value);
}

/** The tab key visits the controls in creation order. */
void HalcyraTimeStructureTabComponent::addStop (juce::Component& control)
{
    control.setExplicitFocusOrder (++numStops);
    addAndMakeVisible (control);
}

juce::ToggleButton* HalcyraTimeStructureTabComponent::toggleOf (HalcyraReverbParameter number) noexcept
{
    if (number == parameter::air)
        return &air;
    return number == parameter::infinite ? &infinite : nullptr;
}

HalcyraTimeStructureTabComponent::NumberControl*
HalcyraTimeStructureTabComponent::controlOf (halcyra::ReverbCell number) noexcept
{
    return number == cell::roomSize ? &roomSize : numbers[static_cast<std::size_t> (number)].get();
}

halcyra::ReverbCell HalcyraTimeStructureTabComponent::cellOf (const juce::Slider* slider) const noexcept
{
    for (const auto& row : halcyra::parameterTable)
        if (const auto& control = numbers[static_cast<std::size_t> (row.number)];
            control != nullptr && slider == &control->slider)
            return row.number;
    return cell::roomSize;
}

// ---- User edits

void HalcyraTimeStructureTabComponent::sliderValueChanged (juce::Slider* slider)
{
    const auto number = cellOf (slider);
    const auto value = static_cast<float> (slider->getValue());
    if (number == cell::roomSize)
        model.setRoomSize (value, Edit::hand);
    else
        model.setParameter (number, value, Edit::hand);
    show (number); // a neighbour's limit also stops the slider
}

void HalcyraTimeStructureTabComponent::buttonClicked (juce::Button* button)
{
    model.boundGesture(); // for key presses; the mouse has already ended its gesture
    if (button == &reset)
        return model.resetParameters (Edit::hand);
    model.setParameter (button == &air ? parameter::air : parameter::infinite, button->getToggleState() ? 1.0f : 0.0f,
                        Edit::hand);
}

// ---- Showing the model

void HalcyraTimeStructureTabComponent::reverbChanged (const halcyra::ReverbModel::Change& change)
{
    if (change.cell >= cell::firstFilter)
        return;
    if (isShowing())
        show (change.cell);
    else
        stale.set (static_cast<std::size_t> (change.cell));
}

void HalcyraTimeStructureTabComponent::sightChanged (bool isInSight)
{
    if (isInSight)
        showStale();
    else
        model.release(); // a press still open when the window went out of sight
}

void HalcyraTimeStructureTabComponent::showStale()
{
    for (std::size_t i = 0; i < stale.size(); ++i)
        if (stale.test (i))
            show (static_cast<halcyra::ReverbCell> (i));
    stale.reset();
}

void HalcyraTimeStructureTabComponent::show (halcyra::ReverbCell number)
{
    static constexpr auto toDisplay = displaySetters();

    const float value = model.value (number);
    if (auto* toggle = toggleOf (number))
        return toggle->setToggleState (value != 0, juce::dontSendNotification);
    auto& control = *controlOf (number);
    control.slider.setValue (static_cast<double> (value), juce::dontSendNotification);
    control.value.show (value);
    if (number == cell::roomSize)
        return;
    if (isStageTime (number))
        showStages();
    else if (const auto set = toDisplay[static_cast<std::size_t> (number)])
        (display.*set) (value);
}

/** The display clamps each time against the others and keeps the cluster relative to the early stage; setting them
    together keeps the model's times as they are. */
void HalcyraTimeStructureTabComponent::showStages()
{
    const auto& times = model.parameters();
    display.setEarlyStart (1);
    display.setEarlyEnd (times.earlyEnd);
    display.setEarlyStart (times.earlyStart);
    display.setClusterStart (times.clusterStart);
    display.setClusterEnd (times.clusterEnd);
}

// ---- Stand-alone page

void HalcyraTimeStructureTabComponent::parameterTold (HalcyraReverbParameter number)
{
    listeners.call ([&] (lumo::HalcyraTimeStructureListener& l) { l.timeStructureChanged (this, number); });
}

void HalcyraTimeStructureTabComponent::updateTimeStructureField (HalcyraTimeStructure& out, int number) const
{
    const auto* row = halcyra::parameterRow (number);
    if (row == nullptr)
        return;
    if (row->isSwitch())
        out.*row->flag = model.parameters().*row->flag;
    else
        out.*row->value = model.parameters().*row->value;
}

void HalcyraTimeStructureTabComponent::setParameter (HalcyraReverbParameter number, float value, int notification)
{
    model.setParameter (number, value, editOf (notification));
}

void HalcyraTimeStructureTabComponent::setRoomSize (float value, int notification)
{
    model.setRoomSize (value, editOf (notification));
}

void HalcyraTimeStructureTabComponent::setTimeStructure (const HalcyraTimeStructure& wish, int notification)
{
    model.recallParameters (wish, editOf (notification));
}

// ---- Drawing

void HalcyraTimeStructureTabComponent::resized()
{
    display.setBounds (halcyra::displayBox.rectangle());
    reset.setBounds (halcyra::resetBox.rectangle());
}

void HalcyraTimeStructureTabComponent::paint (juce::Graphics& g) { g.fillAll (halcyra::editors::pageColour); }

void HalcyraTimeStructureTabComponent::Group::paint (juce::Graphics& g)
{
    constexpr int line = 10, name = 18; // pixels from the sides and from the top that the look draws in
    if (! getLocalBounds().reduced (line).withTop (name).contains (g.getClipBounds()))
        GroupComponent::paint (g);
}
