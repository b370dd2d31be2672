#include "gui/verb/HLShelfFrequencyResponseComponent.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumo
{

namespace
{

const juce::Colour curveColour{ 0x9E2A9DA5 };

/** The field that a handle moves; the first field, G0, has no handle. */
constexpr std::size_t fieldOf (int handle) noexcept { return static_cast<std::size_t> (handle) + 1; }

juce::Colour curveLineColour() { return curveColour.darker (0.4f); }

float limitedGain (double dB)
{
    return static_cast<float> (std::clamp (dB, halcyra::HLShelfScale::lowestGain, halcyra::HLShelfScale::highestGain));
}

float limitedFrequency (double hz)
{
    return static_cast<float> (
        std::clamp (hz, halcyra::HLShelfScale::lowestFrequency, halcyra::HLShelfScale::highestFrequency));
}

void drawVertical (juce::Graphics& g, double x, float thickness, float height)
{
    g.fillRect (juce::Rectangle<float> (static_cast<float> (x) - 0.5f * thickness, 0, thickness, height));
}

}

HLShelfFrequencyResponseComponent::HLShelfFrequencyResponseComponent (const juce::String& name)
    : HLShelfFrequencyResponseComponent (name, std::make_unique<halcyra::SelfWakingModel> (0))
{}

HLShelfFrequencyResponseComponent::HLShelfFrequencyResponseComponent (const juce::String& name,
                                                                      std::unique_ptr<halcyra::SelfWakingModel> own)
    : HLShelfFrequencyResponseComponent (name, *own, 0)
{
    ownModel = std::move (own);
}

HLShelfFrequencyResponseComponent::HLShelfFrequencyResponseComponent (const juce::String& name,
                                                                      halcyra::ReverbModel& modelToShow,
                                                                      HalcyraFilter filterToShow)
    : Component (name), model (modelToShow), number (filterToShow)
{
    setOpaque (true); // the grid covers it entirely
    setTitle ("Frequency response");
    setHelpText ("Drawn from the sliders below, which move it too.");
    grid.setAccessible (false);
    addAndMakeVisible (grid);
    setSize (200, 100);
    setRepaintsOnMouseActivity (true);
    model.addListener (this);
}

HLShelfFrequencyResponseComponent::~HLShelfFrequencyResponseComponent() { model.removeListener (this); }

void HLShelfFrequencyResponseComponent::addListener (Listener* listener) { listeners.add (listener); }
void HLShelfFrequencyResponseComponent::removeListener (Listener* listener) { listeners.remove (listener); }

void HLShelfFrequencyResponseComponent::reverbChanged (const halcyra::ReverbModel::Change& change)
{
    if (change.cell < halcyra::cell::ofFilter (number, 0) || change.cell >= halcyra::cell::ofFilter (number + 1, 0))
        return;
    stale = true;
    repaint();
}

void HLShelfFrequencyResponseComponent::filterTold (HalcyraFilter told)
{
    if (told == number)
        listeners.call ([this] (Listener& l) { l.filterChanged (this); });
}

void HLShelfFrequencyResponseComponent::setParameters (const HLShelfParameters& wish, bool notify, bool force)
{
    model.setFilter (number, wish, notify ? halcyra::Edit::message : halcyra::Edit::quiet, force);
}

void HLShelfFrequencyResponseComponent::setField (std::size_t field, float value, halcyra::Edit edit)
{
    model.setFilterField (number, field, value, edit);
}

void HLShelfFrequencyResponseComponent::requestClose()
{
    listeners.call ([] (Listener& l) { l.filterClose(); });
}

halcyra::HLShelfScale HLShelfFrequencyResponseComponent::scale() const noexcept
{
    return { static_cast<double> (getWidth()), static_cast<double> (getHeight()) };
}

// ---- Handles

juce::Point<double> HLShelfFrequencyResponseComponent::handleCentre (int handle) const noexcept
{
    const auto s = scale();
    const auto& parameters = getParameters();
    const double xl = s.x (static_cast<double> (parameters.fl)), xh = s.x (static_cast<double> (parameters.fh));
    const auto y = [&] (float gain) { return s.y (static_cast<double> (gain + parameters.G0)); };
    switch (handle) {
    case lowGain:
        return { 0.5 * xl, y (parameters.Gl) };
    case midGain:
        return { 0.5 * (xl + xh), y (parameters.Gm) };
    case highGain:
        return { 0.5 * (s.width + xh), y (parameters.Gh) };
    case lowFrequency:
        return { xl, 0 };
    default:
        return { xh, 0 };
    }
}

int HLShelfFrequencyResponseComponent::handleRadius() const noexcept
{
    return std::min (static_cast<int> (0.05f * static_cast<float> (getHeight())), 5);
}

int HLShelfFrequencyResponseComponent::handleAt (juce::Point<double> position) const noexcept
{
    for (int handle = lowGain; handle < numHandles; ++handle) {
        const auto distance = position - handleCentre (handle);
        const bool onHeight = handle >= lowFrequency || std::abs (distance.y) < handleRadius();
        if (std::abs (distance.x) < handleRadius() && onHeight)
            return handle;
    }
    return none;
}

void HLShelfFrequencyResponseComponent::mouseDown (const juce::MouseEvent& e)
{
    selectedHandle = handleAt (e.position.toDouble());
    if (selectedHandle == none)
        setMouseCursor (juce::MouseCursor::NormalCursor);
    else
        setMouseCursor (selectedHandle < lowFrequency ? juce::MouseCursor::UpDownResizeCursor
                                                      : juce::MouseCursor::LeftRightResizeCursor);
    if (selectedHandle != none)
        model.hold (halcyra::cell::ofFilter (number, fieldOf (selectedHandle)));
    repaint();
    mouseDrag (e); // a plain click also moves the handle
}

void HLShelfFrequencyResponseComponent::mouseDrag (const juce::MouseEvent& e)
{
    hovered = reallyContains (e.position, false);
    if (selectedHandle == none || ! isEnabled() || ! hovered)
        return;
    const auto position = e.position.toDouble();
    const bool isGain = selectedHandle < lowFrequency;
    setField (fieldOf (selectedHandle),
              isGain ? limitedGain (scale().gain (position.y) - static_cast<double> (getParameters().G0))
                     : limitedFrequency (scale().frequency (position.x)),
              halcyra::Edit::hand);
}

void HLShelfFrequencyResponseComponent::mouseUp (const juce::MouseEvent&)
{
    model.release();
    setMouseCursor (juce::MouseCursor::NormalCursor);
    repaint();
}

void HLShelfFrequencyResponseComponent::mouseEnter (const juce::MouseEvent&)
{
    hovered = true;
    repaint();
}

void HLShelfFrequencyResponseComponent::mouseExit (const juce::MouseEvent&)
{
    hovered = false;
    selectedHandle = none;
    repaint();
}

void HLShelfFrequencyResponseComponent::mouseWheelMove (const juce::MouseEvent&, const juce::MouseWheelDetails& wheel)
{
    if (! std::isfinite (wheel.deltaY))
        return;
    const double turn = static_cast<double> (wheel.deltaY);
    if (selectedHandle == none) // listeners are notified all the same
        return model.setFilter (number, getParameters(), halcyra::Edit::hand, true);
    const auto field = fieldOf (selectedHandle);
    const auto present = static_cast<double> (getParameters().*halcyra::shelfTable[field].value);
    setField (field,
              selectedHandle < lowFrequency ? limitedGain (present + 60 * turn * 0.15)
                                            : limitedFrequency (present * std::exp2 (turn)),
              halcyra::Edit::hand);
}

// ---- Drawing

void HLShelfFrequencyResponseComponent::resized() { grid.setBounds (getLocalBounds()); }

void HLShelfFrequencyResponseComponent::paintOverChildren (juce::Graphics& g)
{
    bringUpToDate();
    g.setFont (juce::Font (halcyra::HLShelfGrid::fontHeight));
    paintCurve (g);
    if (hovered)
        paintHandles (g);
    Component::paintOverChildren (g);
}

std::unique_ptr<juce::AccessibilityHandler> HLShelfFrequencyResponseComponent::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::image);
}

void HLShelfFrequencyResponseComponent::bringUpToDate()
{
    if (std::exchange (stale, false))
        response.design (getParameters());
}

juce::Path HLShelfFrequencyResponseComponent::curve() const
{
    const auto s = scale();
    const auto y = [&] (double hz) {
        return static_cast<float> (std::clamp (s.y (response.decibelsAt (hz)), 0.0, s.height));
    };
    juce::Path path;
    path.startNewSubPath (0, y (halcyra::HLShelfScale::lowestFrequency));
    for (int x = 3; x <= getWidth(); x += 3)
        path.lineTo (static_cast<float> (x), y (s.frequency (x)));
    return path;
}

void HLShelfFrequencyResponseComponent::paintCurve (juce::Graphics& g) const
{
    auto path = curve();
    g.setColour (curveLineColour());
    g.strokePath (path, juce::PathStrokeType (2, juce::PathStrokeType::curved, juce::PathStrokeType::rounded));
    path.lineTo (getLocalBounds().getBottomRight().toFloat());
    path.lineTo (getLocalBounds().getBottomLeft().toFloat());
    path.closeSubPath();
    g.setColour (curveColour);
    g.fillPath (path);
}

void HLShelfFrequencyResponseComponent::paintHandles (juce::Graphics& g) const
{
    const auto radius = static_cast<float> (handleRadius());
    g.setColour (curveLineColour());
    for (const int handle : { lowFrequency, highFrequency })
        drawVertical (g, handleCentre (handle).x, 2, static_cast<float> (getHeight()));
    for (const int handle : { lowGain, midGain, highGain })
        g.fillRect (juce::Rectangle<float> (2 * radius, 2 * radius).withCentre (handleCentre (handle).toFloat()));

    if (selectedHandle < lowGain || selectedHandle > highGain)
        return;
    const auto centre = handleCentre (selectedHandle).toInt();
    g.setColour (juce::Colours::black);
    g.drawText (juce::String (getParameters().*halcyra::shelfTable[fieldOf (selectedHandle)].value, 1) + " dB",
                juce::Rectangle<int> (centre.x - 20, centre.y - 20, 40, 40), juce::Justification::centred, false);
}

}
