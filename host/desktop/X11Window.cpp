#define JUCE_GUI_BASICS_INCLUDE_XHEADERS 1
#include "host/desktop/X11Window.h"

#include <JucePrivateParts.h>

namespace
{

/** A connection of our own to the display named in the environment. */
class DisplayConnection
{
public:
    DisplayConnection() : display (XOpenDisplay (nullptr)) {}
    ~DisplayConnection()
    {
        if (display != nullptr)
            XCloseDisplay (display);
    }

    DisplayConnection (const DisplayConnection&) = delete;
    DisplayConnection& operator= (const DisplayConnection&) = delete;

    [[nodiscard]] bool isOpen() const { return display != nullptr; }

    /** Creates the atoms that JUCE expects a window manager to have created; without one the first window would end the
        process with a protocol error. */
    void internWindowManagerAtoms()
    {
        const char* const names[] = { "WM_PROTOCOLS",
                                      "WM_TAKE_FOCUS",
                                      "WM_DELETE_WINDOW",
                                      "WM_STATE",
                                      "WM_CHANGE_STATE",
                                      "_NET_WM_STATE",
                                      "_NET_WM_STATE_HIDDEN",
                                      "_NET_WM_WINDOW_TYPE",
                                      "_NET_WM_WINDOW_TYPE_NORMAL",
                                      "_NET_FRAME_EXTENTS" };
        for (const auto* name : names)
            XInternAtom (display, name, False);
        XSync (display, False);
    }

private:
    ::Display* display;
};

/** Ignores X errors: requests may arrive after a window manager has removed a window or frame. Xlib's own handler would
    end the process, including the host. */
int passOverError (::Display*, XErrorEvent*) { return 0; }

}

std::unique_ptr<orvanemax::NativeWindow> orvanemax::makePlatformWindow()
{
    return std::make_unique<desktop::X11Window>();
}

void orvanemax::startJuceInHost()
{
    if (juce::MessageManager::getInstanceWithoutCreating() == nullptr)
        juce::MessageManager::getInstance();

    XSetErrorHandler (passOverError);

    // Atoms exist while the server has clients: keep the connection open until JUCE has its own.
    DisplayConnection connection;
    if (connection.isOpen())
        connection.internWindowManagerAtoms();
    juce::Desktop::getInstance();
    juce::XWindowSystem::getInstance();
}

namespace desktop
{

bool X11Window::isDisplayAvailable() { return DisplayConnection().isOpen(); }

void X11Window::setTitle (const juce::String& title)
{
    JuceWindow::setTitle (title);

    // JUCE leaves the new title in the connection's buffer until the next request.
    if (auto* display = juce::XWindowSystem::getInstance()->getDisplay())
        juce::X11Symbols::getInstance()->xFlush (display);
}

std::unique_ptr<JuceWindow::Shell> X11Window::makeShell (const juce::String& title)
{
    struct RestingShell : Shell
    {
        using Shell::Shell;
        juce::ComponentPeer* createNewPeer (int styleFlags, void*) override
        {
            return juce::createRestingPeer (*this, styleFlags);
        }
    };
    return std::make_unique<RestingShell> (*this, title);
}

}
