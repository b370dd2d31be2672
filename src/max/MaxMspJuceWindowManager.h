#pragma once

#include "host/api/MaxApi.h"
#include "max/window/NativeWindow.h"

#include <memory>

/** Shows a component in a floating window inside the Max process.

    The first open() creates the window, close() only hides it. Whatever touches the window is deferred, so that it runs
    after the caller has returned. Main thread; lengths are in physical screen pixels. */
class MaxMspJuceWindowManager
{
public:
    /** Owns neither the owner nor the component. The flag goes to the window factory, which ignores it. */
    MaxMspJuceWindowManager (t_object* owner, juce::Component* component, bool flag);

    /** Destroys the window at once, not deferred: its owner is being freed. */
    ~MaxMspJuceWindowManager();

    MaxMspJuceWindowManager (const MaxMspJuceWindowManager&) = delete;
    MaxMspJuceWindowManager& operator= (const MaxMspJuceWindowManager&) = delete;

    /** Hides the window and forgets the owner, which is freed before this manager. Call nothing else after it. */
    void leaveOwner();

    /** Position for the next new window; an open one stays. Warns if the window is not moveable. */
    void setTopLeft (int newTop, int newLeft);
    void setTopLeft (const float (&topLeft)[2]);

    /** Whether setTopLeft() may change the position. */
    void setMoveable (bool isMoveable) noexcept;
    void setTitle (const char* text);

    /** Creates the window or brings it to the front; without show it stays empty. */
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
