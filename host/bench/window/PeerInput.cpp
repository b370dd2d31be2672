#include "host/bench/window/PeerInput.h"

#include "host/desktop/OffscreenDesktop.h"

namespace bench
{

namespace
{

// Presses further apart than this never form a double click.
constexpr int apart = 1000;

/** The clock of all events: milliseconds, never behind the real time at its first use. */
juce::int64& eventTime()
{
    static juce::int64 now = juce::Time::currentTimeMillis();
    return now;
}

juce::ModifierKeys buttonOf (juce::ModifierKeys keys)
{
    return keys.isRightButtonDown() ? juce::ModifierKeys::rightButtonModifier : juce::ModifierKeys::leftButtonModifier;
}

}

PeerInput::PeerInput (juce::Component& componentToWorkOn) : component (&componentToWorkOn) {}

bool PeerInput::move (juce::Point<float> position, juce::ModifierKeys keys)
{
    passTime (apart);
    return deliver (position, keys.withoutMouseButtons());
}

bool PeerInput::press (juce::Point<float> position, juce::ModifierKeys keys)
{
    passTime (apart);
    if (! deliver (position, keys.withoutMouseButtons()))
        return false;
    heldButton = buttonOf (keys);
    return drag (position, keys);
}

bool PeerInput::drag (juce::Point<float> position, juce::ModifierKeys keys)
{
    passTime (10);
    return deliver (position, keys.withoutMouseButtons().withFlags (heldButton.getRawFlags()));
}

bool PeerInput::release (juce::Point<float> position, juce::ModifierKeys keys)
{
    passTime (50);
    heldButton = {};
    return deliver (position, keys.withoutMouseButtons());
}

bool PeerInput::click (juce::Point<float> position, juce::ModifierKeys keys)
{
    return press (position, keys) && release (position, keys);
}

bool PeerInput::doubleClick (juce::Point<float> position, juce::ModifierKeys keys)
{
    return click (position, keys) && clickAgain (position, keys);
}

bool PeerInput::clickAgain (juce::Point<float> position, juce::ModifierKeys keys)
{
    passTime (100);
    if (! deliver (position, keys.withoutMouseButtons()))
        return false;
    heldButton = buttonOf (keys);
    return drag (position, keys) && release (position, keys);
}

bool PeerInput::wheel (juce::Point<float> position, float delta, juce::ModifierKeys keys)
{
    keys = keys.withoutMouseButtons().withFlags (heldButton.getRawFlags());
    passTime (apart);
    if (! deliver (position, keys))
        return false;

    auto* const target = peer();
    if (target == nullptr)
        return false;
    juce::MouseWheelDetails turn;
    turn.deltaX = 0.0F;
    turn.deltaY = delta;
    turn.isReversed = turn.isSmooth = turn.isInertial = false;
    juce::ModifierKeys::currentModifiers = keys;
    target->handleMouseWheel (juce::MouseInputSource::InputSourceType::mouse,
                              target->getComponent().getLocalPoint (component.get(), position), eventTime(), turn);
    juce::ModifierKeys::currentModifiers = keys.withOnlyMouseButtons();
    return true;
}

bool PeerInput::key (const juce::KeyPress& press)
{
    auto* const target = peer();
    if (target == nullptr)
        return false;

    target->grabFocus();
    juce::ModifierKeys::currentModifiers = press.getModifiers();
    target->handleModifierKeysChange();
    target->handleKeyPress (press);
    juce::ModifierKeys::currentModifiers = {};
    if (juce::ComponentPeer::isValidPeer (target))
        target->handleModifierKeysChange();
    return true;
}

juce::ComponentPeer* PeerInput::peer() const
{
    return component != nullptr && component->isShowing() ? component->getPeer() : nullptr;
}

void PeerInput::passTime (int milliseconds) { eventTime() += milliseconds; }

bool PeerInput::deliver (juce::Point<float> position, juce::ModifierKeys keys)
{
    auto* const target = peer();
    if (target == nullptr)
        return false;

    const auto inPeer = target->getComponent().getLocalPoint (component.get(), position);
    desktop::offscreen::setPointer (target->localToGlobal (inPeer).roundToInt());
    // JUCE takes only the buttons from the event; shift, ctrl and alt come from process-wide state.
    juce::ModifierKeys::currentModifiers = keys;
    target->handleMouseEvent (juce::MouseInputSource::InputSourceType::mouse, inPeer, keys,
                              juce::MouseInputSource::defaultPressure, juce::MouseInputSource::defaultOrientation,
                              eventTime());
    juce::ModifierKeys::currentModifiers = keys.withOnlyMouseButtons();
    return true;
}

}
