#pragma once

#include "max/window/NativeWindow.h"

namespace desktop
{

/** A window that JUCE makes, with the attached component as its content. The window takes the content's size;
    its decoration is the desktop's own. What the peer is, on a display or in memory, is the subclass's choice. */
class JuceWindow : public orvanemax::NativeWindow
{
public:
    JuceWindow();
    ~JuceWindow() override;

    bool create (const juce::String& title, juce::Rectangle<int> frame) override;

    /** Waits for the first content: a window manager would confirm the size that the window had before, perhaps
        after the window has taken the content's, and the window would go back to it. */
    void show() override;

    void hide() override;
    void destroy() override;
    void setTitle (const juce::String& title) override;
    void attach (juce::Component* component) override;
    [[nodiscard]] bool exists() const override { return shell != nullptr; }
    [[nodiscard]] bool isOccupied() const override;

protected:
    /** The JUCE window around the content. Its close button is handed on; focus that it gets goes to the content. */
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
    /** Puts a window that is shown again back to where it was, if it has crept by its frame. */
    void keepPlace();

    std::unique_ptr<Shell> shell;
    /** A window manager reports the frame's place for a window that it has let go, and JUCE would take that for the
        content's: the window would creep by its frame. Empty for one that was never hidden. */
    juce::Rectangle<int> placeWhenHidden;
    bool isWanted = false;
};

}
