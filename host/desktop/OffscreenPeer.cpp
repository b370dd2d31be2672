#include "host/desktop/OffscreenPeer.h"

namespace desktop
{

OffscreenPeer* OffscreenPeer::focusedPeer = nullptr;

OffscreenPeer::OffscreenPeer (juce::Component& componentToShow, int flags) : ComponentPeer (componentToShow, flags)
{
    // Modifier keys are the last event's: there is no keyboard to query.
    getNativeRealtimeModifiers = [] { return juce::ModifierKeys::currentModifiers; };
}

OffscreenPeer::~OffscreenPeer()
{
    if (focusedPeer == this)
        focusedPeer = nullptr;
}

const juce::Image& OffscreenPeer::picture()
{
    performAnyPendingRepaintsNow();
    return image;
}

juce::Point<float> OffscreenPeer::localToGlobal (juce::Point<float> point)
{
    return point + bounds.getPosition().toFloat();
}

juce::Point<float> OffscreenPeer::globalToLocal (juce::Point<float> point)
{
    return point - bounds.getPosition().toFloat();
}

void OffscreenPeer::setBounds (const juce::Rectangle<int>& newBounds, bool)
{
    if (newBounds.withZeroOrigin() != bounds.withZeroOrigin())
        image = {};
    bounds = newBounds;
    handleMovedOrResized();
}

bool OffscreenPeer::contains (juce::Point<int> position, bool) const
{
    return bounds.withZeroOrigin().contains (position);
}

void OffscreenPeer::setVisible (bool shouldBeVisible)
{
    if (! shouldBeVisible && focusedPeer == this) {
        focusedPeer = nullptr;
        handleFocusLoss();
    }
}

void OffscreenPeer::toFront (bool takeKeyboardFocus)
{
    handleBroughtToFront();
    if (takeKeyboardFocus)
        grabFocus();
}

void OffscreenPeer::grabFocus()
{
    if (focusedPeer == this)
        return;

    auto* const last = std::exchange (focusedPeer, this);
    if (last != nullptr)
        last->handleFocusLoss();
    handleFocusGain();
}

void OffscreenPeer::performAnyPendingRepaintsNow()
{
    const auto area = bounds.withZeroOrigin();
    if (! image.isValid()) {
        image = { juce::Image::ARGB, area.getWidth(), area.getHeight(), true, juce::SoftwareImageType() };
        outOfDate = area;
    }

    outOfDate.clipTo (area);
    const auto regions = std::exchange (outOfDate, {});
    if (regions.isEmpty())
        return;

    for (const auto& region : regions)
        image.clear (region);
    juce::LowLevelGraphicsSoftwareRenderer renderer (image, {}, regions);
    handlePaint (renderer);
}

}
