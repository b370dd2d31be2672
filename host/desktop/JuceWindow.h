#pragma once

#include "max/window/NativeWindow.h"

namespace desktop
{

/** A JUCE window with the attached component as its content. The window takes the content's size; the desktop draws its
    decoration. The subclass chooses the peer, on a display or in memory. */
class JuceWindow : public orvanemax::NativeWindow
{
public:
    JuceWindow();
    ~JuceWindow() override;

    bool create (const juce::String& title, juce::Rectangle<int> frame) override;

    /** Waits for the first content: a window manager would confirm the window's former size, possibly after the window
        has taken the content's size, and revert it. */
    void show() override;

    void hide() override;
    void destroy() override;
    void setTitle (const juce::String& title) override;
    void attach (juce::Component* component) override;
    [[nodiscard]] bool exists() const override { return shell != nullptr; }
    [[nodiscard]] bool isOccupied() const override;

protected:
    /** The JUCE window around the content. Forwards its close button, and passes its focus to the content. */
    class Shell : public juce::DocumentWindow
    {
    public:
        Shell (JuceWindow& window, const juce::String& title);

        void closeButtonPressed() override;
        void moved() override;
        void focusGained (FocusChangeType cause) override;

    private:
        JuceWindow& window;
    };

    virtual std::unique_ptr<Shell> makeShell (const juce::String& title) = 0;

private:
    void bringUp();
    /** Where the content is: JUCE's position, unless that is the frame's. */
    [[nodiscard]] juce::Rectangle<int> truePlace() const;
    /** Restores the position of a window shown again. */
    void keepPlace();

    std::unique_ptr<Shell> shell;
    /** A window manager may report the frame's position for a window that it has released or not yet decorated, and
        JUCE takes it for the content's: the window would drift by its frame. Empty if never hidden. */
    juce::Rectangle<int> placeWhenHidden;
    juce::Point<int> createdAt;
    bool isWanted = false;
};

}
