#pragma once

#include "host/bench/window/GuiPump.h"
#include "host/bench/window/PeerInput.h"
#include "host/desktop/OffscreenWindow.h"

#include <juce_gui_basics/juce_gui_basics.h>

/** Shows one component in a window in memory for its lifetime, and operates it as a user would. Every gesture pumps
    afterwards, so that asynchronous notifications have arrived when it returns. */
class Stage
{
public:
    explicit Stage (juce::Component& component);
    ~Stage();

    Stage (const Stage&) = delete;
    Stage& operator= (const Stage&) = delete;

    // Positions are in pixels of the component on the stage; at() converts those of its children.
    void move (juce::Point<int> position, juce::ModifierKeys keys = {});
    void press (juce::Point<int> position, juce::ModifierKeys keys = {});
    void drag (juce::Point<int> position, juce::ModifierKeys keys = {});
    void release (juce::Point<int> position, juce::ModifierKeys keys = {});
    void click (juce::Point<int> position, juce::ModifierKeys keys = {});
    void rightClick (juce::Point<int> position);
    void doubleClick (juce::Point<int> position, juce::ModifierKeys keys = {});
    /** Makes a double click of itself and the click before, if they are a few pixels apart. */
    void clickAgain (juce::Point<int> position);
    void wheel (juce::Point<int> position, float delta, juce::ModifierKeys keys = {});

    /** Presses at one point, moves to the other in a few steps and releases there. */
    void dragFromTo (juce::Point<int> from, juce::Point<int> to, juce::ModifierKeys keys = {});

    /** Types a key as juce::KeyPress describes it: "w", "ctrl + w", "cursor left". */
    void key (const juce::String& description);

    /** Converts a point of a descendant to the stage; without a point, its centre. */
    [[nodiscard]] juce::Point<int> at (const juce::Component& part, juce::Point<int> point) const;
    [[nodiscard]] juce::Point<int> at (const juce::Component& part) const;

    /** What the window currently shows. */
    [[nodiscard]] juce::Image picture() const;

private:
    juce::Component& component;
    desktop::OffscreenWindow window;
    bench::PeerInput input;
};
