#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace bench
{

/** The pointer and the keyboard of someone who sits before a window. Events enter at the component's peer, as
    from the window system, with a clock of their own: two presses are a double click only when asked for.

    Positions are pixels of the component. Every operation returns false, having done nothing, while the
    component stands in no visible window. Message thread; nothing is pumped. */
class PeerInput
{
public:
    explicit PeerInput (juce::Component& component);

    bool move (juce::Point<float> position, juce::ModifierKeys keys = {});

    /** Presses the left button, or the right one if the keys hold it. */
    bool press (juce::Point<float> position, juce::ModifierKeys keys = {});

    /** Moves with the pressed button held; like move() when none is. */
    bool drag (juce::Point<float> position, juce::ModifierKeys keys = {});
    bool release (juce::Point<float> position, juce::ModifierKeys keys = {});
    bool click (juce::Point<float> position, juce::ModifierKeys keys = {});
    bool doubleClick (juce::Point<float> position, juce::ModifierKeys keys = {});

    /** A notch of the wheel turns by about 0.2; positive away from the user. A pressed button stays pressed. */
    bool wheel (juce::Point<float> position, float delta, juce::ModifierKeys keys = {});

    /** Types the key into whatever has the focus in the window. */
    bool key (const juce::KeyPress& press);

private:
    [[nodiscard]] juce::ComponentPeer* peer() const;
    void passTime (int milliseconds);
    bool deliver (juce::Point<float> position, juce::ModifierKeys keys);

    juce::WeakReference<juce::Component> component;
    juce::ModifierKeys heldButton;
};

}
