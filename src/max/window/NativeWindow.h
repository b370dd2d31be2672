#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>
#include <memory>

namespace orvanemax
{

/** A top-level window of the desktop that shows one component, which it does not own.
    Its object exists from the beginning; the window itself from create() to destroy(). Main thread.

    The platform's window comes from makeNativeWindow(). To bring another kind of window, or to watch
    the windows of the process, hand a factory of your own to setNativeWindowFactory(). */
class NativeWindow
{
public:
    virtual ~NativeWindow() = default;

    /** Makes the window with its outer frame at these physical pixels; false when the system gives none. */
    virtual bool create (const juce::String& title, juce::Rectangle<int> frame) = 0;

    /** Makes the window visible, restores it if it was minimised, and brings it to the front. */
    virtual void show() = 0;

    /** Takes the window off the screen. It and what is attached stay. */
    virtual void hide() = 0;

    /** Ends the window. Whatever is attached is taken out first. */
    virtual void destroy() = 0;

    virtual void setTitle (const juce::String& title) = 0;

    /** Fills the window with the component from its top left corner; null takes it out again. */
    virtual void attach (juce::Component* component) = 0;

    /** Between a create() that succeeded and destroy(). */
    [[nodiscard]] virtual bool exists() const = 0;

    /** True while a component stands in the window, shown or hidden. */
    [[nodiscard]] virtual bool isOccupied() const = 0;

    /** Called when the user presses the window's close button. The window itself does nothing then. */
    std::function<void()> onCloseButton;
};

/** Makes the window of one owner; the component is the one that will be attached. */
using NativeWindowFactory =
    std::function<std::unique_ptr<NativeWindow> (const void* owner, juce::Component* component)>;

/** A window as the installed factory makes it, else the platform's own. */
std::unique_ptr<NativeWindow> makeNativeWindow (const void* owner, juce::Component* component);

/** Windows made from now on come from this factory; an empty one brings back the platform's own. */
void setNativeWindowFactory (NativeWindowFactory factory);

/** The window of this platform: of Windows itself, elsewhere what the host defines. */
std::unique_ptr<NativeWindow> makePlatformWindow();

/** Brings JUCE up on the calling thread, which becomes its message thread, unless another external of the
    process has done so. The host's own message pump serves it from then on. Elsewhere than on Windows the host defines
    it. */
void startJuceInHost();

}
