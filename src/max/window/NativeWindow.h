#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>
#include <memory>

namespace orvanemax
{

/** A top-level desktop window that shows one component, which it does not own. The native window exists from create()
    to destroy(). Main thread.

    makeNativeWindow() creates the platform's window. To use another kind of window, or to monitor the process's
    windows, install a factory with setNativeWindowFactory(). */
class NativeWindow
{
public:
    virtual ~NativeWindow() = default;

    /** Creates the window with this outer frame in physical pixels; false if the system fails. */
    virtual bool create (const juce::String& title, juce::Rectangle<int> frame) = 0;

    /** Shows the window, restores it if minimised, and brings it to the front. */
    virtual void show() = 0;

    /** Hides the window; it and its component stay. */
    virtual void hide() = 0;

    /** Removes the component, then destroys the window. */
    virtual void destroy() = 0;

    virtual void setTitle (const juce::String& title) = 0;

    /** Fills the window with the component from the top left corner; null removes it. */
    virtual void attach (juce::Component* component) = 0;

    /** True between a successful create() and destroy(). */
    [[nodiscard]] virtual bool exists() const = 0;

    /** True while a component is attached, visible or not. */
    [[nodiscard]] virtual bool isOccupied() const = 0;

    /** Called when the user presses the close button; the window itself takes no action. */
    std::function<void()> onCloseButton;
};

/** Creates an owner's window; the component is the one that will be attached. */
using NativeWindowFactory =
    std::function<std::unique_ptr<NativeWindow> (const void* owner, juce::Component* component)>;

/** A window from the installed factory, otherwise the platform's own. */
std::unique_ptr<NativeWindow> makeNativeWindow (const void* owner, juce::Component* component);

/** Sets the factory for new windows; an empty one restores the platform's own. */
void setNativeWindowFactory (NativeWindowFactory factory);

/** The platform's window: on Windows a native one, elsewhere defined by the host. */
std::unique_ptr<NativeWindow> makePlatformWindow();

/** Initialises JUCE on the calling thread, which becomes its message thread, unless another external of the process
    already has. The host's message pump then serves it. On platforms other than Windows the host defines this. */
void startJuceInHost();

}
