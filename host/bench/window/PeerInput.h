#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace bench
{

/** Simulates the user's pointer and keyboard. Events enter at the component's peer, as from the window system, with
    their own clock: two presses form a double click only if requested.

    Positions are in component pixels. Every operation returns false and does nothing while the component is not in a
    visible window. Message thread; does not pump. */
class PeerInput
{
public:
    explicit PeerInput (juce::Component& component);

    bool move (juce::Point<float> position, juce::ModifierKeys keys = {});

    /** Presses the left button, or the right one if the modifiers include it. */
    bool press (juce::Point<float> position, juce::ModifierKeys keys = {});

    /** Moves with the button held; same as move() if none is. */
    bool drag (juce::Point<float> position, juce::ModifierKeys keys = {});
    bool release (juce::Point<float> position, juce::ModifierKeys keys = {});
    bool click (juce::Point<float> position, juce::ModifierKeys keys = {});
    bool doubleClick (juce::Point<float> position, juce::ModifierKeys keys = {});

    /** Clicks so soon after the last click that both form a double click if they are a few pixels apart. */
    bool clickAgain (juce::Point<float> position, juce::ModifierKeys keys = {});

    /** A wheel notch is about 0.2; positive away from the user. A pressed button stays pressed. */
    bool wheel (juce::Point<float> position, float delta, juce::ModifierKeys keys = {});

    /** Types the key into the window's focused component. */
    bool key (const juce::KeyPress& press);

private:
    [[nodiscard]] juce::ComponentPeer* peer() const;
    void passTime (int milliseconds);
    bool deliver (juce::Point<float> position, juce::ModifierKeys keys);

    juce::WeakReference<juce::Component> component;
    juce::ModifierKeys heldButton;
};

}
