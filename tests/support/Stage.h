#pragma once

#include "host/bench/window/GuiPump.h"
#include "host/bench/window/PeerInput.h"
#include "host/desktop/OffscreenWindow.h"

#include <juce_gui_basics/juce_gui_basics.h>

/** Shows one component in a window in memory for as long as the stage stands, and works on it as a user would.
    Every gesture is followed by pumping, so that asynchronous notifications have arrived when it returns. */
class Stage
{
public:
    explicit Stage (juce::Component& component);
    ~Stage();

    Stage (const Stage&) = delete;
    Stage& operator= (const Stage&) = delete;

    // Positions are pixels of the component on the stage; see at() for those of a part of it.
    void move (juce::Point<int> position, juce::ModifierKeys keys = {});
    void press (juce::Point<int> position, juce::ModifierKeys keys = {});
    void drag (juce::Point<int> position, juce::ModifierKeys keys = {});
    void release (juce::Point<int> position, juce::ModifierKeys keys = {});
    void click (juce::Point<int> position, juce::ModifierKeys keys = {});
    void rightClick (juce::Point<int> position);
    void doubleClick (juce::Point<int> position, juce::ModifierKeys keys = {});
    void wheel (juce::Point<int> position, float delta, juce::ModifierKeys keys = {});

    /** Presses at one point, moves to the other in a few steps and releases there. */
    void dragFromTo (juce::Point<int> from, juce::Point<int> to, juce::ModifierKeys keys = {});

    /** Types a key as juce::KeyPress describes it: "w", "ctrl + w", "cursor left". */
    void key (const juce::String& description);

    /** Where a point of a component further in lies on the stage; without one its centre. */
    [[nodiscard]] juce::Point<int> at (const juce::Component& part, juce::Point<int> point) const;
    [[nodiscard]] juce::Point<int> at (const juce::Component& part) const;

    /** What the window shows now. */
    [[nodiscard]] juce::Image picture() const;

private:
    juce::Component& component;
    desktop::OffscreenWindow window;
    bench::PeerInput input;
};
