#define JUCE_GUI_BASICS_INCLUDE_XHEADERS 1
#include "host/desktop/X11Window.h"

#include <JucePrivateParts.h>

namespace
{

/** A connection to the display of the environment, of our own. */
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

    /** Makes the atoms exist that JUCE takes for granted: a window manager would have made them, and without
        one the first window would end the process with a protocol error. */
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

/** A request may come late: a window or frame that a window manager has just taken away is no fault of ours. Xlib's
    own handler would end the process, and the host with it. */
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

    // Atoms live as long as the server has clients: the connection stays open until JUCE has its own.
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

    // JUCE leaves the new name in the connection's buffer until something else is sent.
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
