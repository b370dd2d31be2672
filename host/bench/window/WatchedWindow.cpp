#include "host/bench/window/WatchedWindow.h"

namespace bench
{

WatchedWindow::WatchedWindow (std::unique_ptr<orvanemax::NativeWindow> windowToWatch, Tell tellWhat,
                              std::function<void()> atEnd)
    : window (std::move (windowToWatch)), tell (std::move (tellWhat)), onEnd (std::move (atEnd))
{
    window->onCloseButton = [this] {
        if (onCloseButton)
            onCloseButton();
    };
}

WatchedWindow::~WatchedWindow() { onEnd(); }

bool WatchedWindow::create (const juce::String& title, juce::Rectangle<int> frame)
{
    if (! window->create (title, frame))
        return false;
    shown = false;
    tell ("created " + frame.toString().toStdString() + " " + title.toStdString());
    return true;
}

void WatchedWindow::show()
{
    window->show();
    if (! std::exchange (shown, true))
        tell ("shown");
    tell ("front");
}

void WatchedWindow::hide()
{
    window->hide();
    if (std::exchange (shown, false))
        tell ("hidden");
}

void WatchedWindow::destroy()
{
    const bool existed = window->exists();
    window->destroy();
    if (existed)
        tell ("destroyed");
}

void WatchedWindow::setTitle (const juce::String& title)
{
    window->setTitle (title);
    tell ("title " + title.toStdString());
}

}
