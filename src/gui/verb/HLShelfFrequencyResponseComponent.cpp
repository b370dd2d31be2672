#include "gui/verb/HLShelfFrequencyResponseComponent.h"

#include <algorithm>
#include <cmath>

namespace lumo
{

namespace
{

const juce::Colour curveColour{ 0x9E2A9DA5 };

/** The field that each handle moves, in the order of the handles. */
constexpr float HLShelfParameters::*handleFields[] = { &HLShelfParameters::Gl, &HLShelfParameters::Gm,
                                                       &HLShelfParameters::Gh, &HLShelfParameters::fl,
                                                       &HLShelfParameters::fh };

juce::Colour curveLineColour() { return curveColour.darker (0.4f); }

float limitedGain (double dB)
{
    return static_cast<float> (std::clamp (dB, HLShelfScale::lowestGain, HLShelfScale::highestGain));
}

float limitedFrequency (double hz)
{
    return static_cast<float> (std::clamp (hz, HLShelfScale::lowestFrequency, HLShelfScale::highestFrequency));
}

void drawVertical (juce::Graphics& g, double x, float thickness, float height)
{
    g.fillRect (juce::Rectangle<float> (static_cast<float> (x) - 0.5f * thickness, 0, thickness, height));
}

}

HLShelfFrequencyResponseComponent::HLShelfFrequencyResponseComponent (const juce::String& name) : Component (name)
{
    setOpaque (true); // the grid covers all of it
    addAndMakeVisible (grid);
    setSize (200, 100);
    setRepaintsOnMouseActivity (true);
    reset();
}

void HLShelfFrequencyResponseComponent::addListener (Listener* listener)
{
    if (listener != nullptr && std::find (listeners.begin(), listeners.end(), listener) == listeners.end())
        listeners.push_back (listener);
}

void HLShelfFrequencyResponseComponent::removeListener (Listener* listener)
{
    listeners.erase (std::remove (listeners.begin(), listeners.end(), listener), listeners.end());
}

template <typename Call>
void HLShelfFrequencyResponseComponent::tellListeners (Call&& tell)
{
    for (std::size_t next = 0; next < listeners.size();) { // a listener may remove itself or others
        auto* const listener = listeners[next];
        tell (*listener);
        const auto place = std::find (listeners.begin(), listeners.end(), listener);
        if (place != listeners.end())
            next = static_cast<std::size_t> (place - listeners.begin()) + 1;
    }
}

void HLShelfFrequencyResponseComponent::changed (bool notify)
{
    response.design (parameters);
    if (notify)
        tellListeners ([this] (Listener& l) { l.filterChanged (this); });
    repaint();
}

void HLShelfFrequencyResponseComponent::setParameters (const HLShelfParameters& wish, bool notify, bool force)
{
    if (! halcyra::isFinite (wish) || (wish == parameters && ! force))
        return;
    parameters = wish;
    changed (notify);
}

void HLShelfFrequencyResponseComponent::setField (float HLShelfParameters::*field, float value)
{
    if (! std::isfinite (value))
        return;
    parameters.*field = value;
    changed (true);
}

void HLShelfFrequencyResponseComponent::reset() { setParameters ({}, true, true); }

void HLShelfFrequencyResponseComponent::requestClose()
{
    tellListeners ([] (Listener& l) { l.filterClose(); });
}

HLShelfScale HLShelfFrequencyResponseComponent::scale() const noexcept
{
    return { static_cast<double> (getWidth()), static_cast<double> (getHeight()) };
}

// ---- Handles

juce::Point<double> HLShelfFrequencyResponseComponent::handleCentre (int handle) const noexcept
{
    const auto s = scale();
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
    repaint();
    mouseDrag (e); // so that a click already moves the handle
}

void HLShelfFrequencyResponseComponent::mouseDrag (const juce::MouseEvent& e)
{
    hovered = reallyContains (e.position, false);
    if (selectedHandle == none || ! isEnabled() || ! hovered)
        return;
    const auto position = e.position.toDouble();
    const bool isGain = selectedHandle < lowFrequency;
    setField (handleFields[selectedHandle],
              isGain ? limitedGain (scale().gain (position.y) - static_cast<double> (parameters.G0))
                     : limitedFrequency (scale().frequency (position.x)));
}

void HLShelfFrequencyResponseComponent::mouseUp (const juce::MouseEvent&)
{
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
    if (selectedHandle != none) {
        auto& value = parameters.*handleFields[selectedHandle];
        const auto present = static_cast<double> (value);
        value = selectedHandle < lowFrequency ? limitedGain (present + 60 * turn * 0.15)
                                              : limitedFrequency (present * std::exp2 (turn));
    }
    changed (true); // with no handle selected too
}

// ---- Drawing

void HLShelfFrequencyResponseComponent::resized() { grid.setBounds (getLocalBounds()); }

void HLShelfFrequencyResponseComponent::paintOverChildren (juce::Graphics& g)
{
    g.setFont (juce::Font (HLShelfGrid::fontHeight));
    paintCurve (g);
    if (hovered)
        paintHandles (g);
    Component::paintOverChildren (g);
}

juce::Path HLShelfFrequencyResponseComponent::curve() const
{
    const auto s = scale();
    const auto y = [&] (double hz) {
        return static_cast<float> (std::clamp (s.y (response.decibelsAt (hz)), 0.0, s.height));
    };
    juce::Path path;
    path.startNewSubPath (0, y (HLShelfScale::lowestFrequency));
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
    g.drawText (juce::String (parameters.*handleFields[selectedHandle], 1) + " dB",
                juce::Rectangle<int> (centre.x - 20, centre.y - 20, 40, 40), juce::Justification::centred, false);
}

}
