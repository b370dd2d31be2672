#pragma once

#include "host/api/MaxApi.h"
#include "max/window/NativeWindow.h"

#include <memory>

/** Shows a component in a floating window inside the Max process.

    The window is made by the first open() and only hidden by close(). Everything that touches it is put
    behind defer(), so that it runs after the caller has left. All calls on the main thread; lengths are
    physical pixels of the screen. */
class MaxMspJuceWindowManager
{
public:
    /** Neither the owner nor the component is owned. The flag is for the window factory, which ignores it. */
    MaxMspJuceWindowManager (t_object* owner, juce::Component* component, bool flag);

    /** Ends the window at once, without defer: the owner goes with it. */
    ~MaxMspJuceWindowManager();

    MaxMspJuceWindowManager (const MaxMspJuceWindowManager&) = delete;
    MaxMspJuceWindowManager& operator= (const MaxMspJuceWindowManager&) = delete;

    /** Hides the window and knows the owner no more: it goes before this manager does. Nothing but the end follows. */
    void leaveOwner();

    /** Where the next new window will appear; an open one stays. Warns when the window is not moveable. */
    void setTopLeft (int newTop, int newLeft);
    void setTopLeft (const float (&topLeft)[2]);

    /** Whether setTopLeft() may change the position. */
    void setMoveable (bool isMoveable) noexcept;
    void setTitle (const char* text);

    /** Makes the window or brings it to the front; without show it stays empty. */
    void open (bool show);
    void close();

private:
    static void changeWindowTopLeftPoint_deferred (t_object* owner, t_symbol*, short argc, t_atom* argv);
    static void open_deferred (t_object* owner, t_symbol*, short argc, t_atom* argv);
    static void close_deferred (t_object* owner, t_symbol*, short argc, t_atom* argv);

    void refreshPosition() noexcept;
    void bringBack (bool show);
    void build (bool show);
    void takeOut();
    void hide();

    std::unique_ptr<orvanemax::NativeWindow> window;
    int top = 50;
    int left = 800;
    t_object* owner;
    juce::Component* component;
    t_symbol* title;
    bool moveable = true;
};
