#include "host/pd/MessageLoop.h"
#include "host/desktop/X11Window.h"
#include <algorithm>
#include <juce_events/native/juce_linux_EventLoopInternal.h>
#include <vector>

namespace MessageLoop
{

namespace
{
using Loop = juce::LinuxEventLoopInternal;

Watch host;
std::vector<int> watched;

/** Keeps the host's list of descriptors in sync with JUCE's. */
struct Follower : Loop::Listener
{
    void fdCallbacksChanged() override
    {
        auto now = Loop::getRegisteredFds();
        for (const auto descriptor : watched)
            if (std::find (now.begin(), now.end(), descriptor) == now.end())
                host.remove (descriptor);
        for (const auto descriptor : now)
            if (std::find (watched.begin(), watched.end(), descriptor) == watched.end())
                host.add (descriptor);
        watched = std::move (now);
    }
};

Follower& follower()
{
    static auto& one = *new Follower;
    return one;
}
}

void setWatch (const Watch& watch) { host = watch; }

void start()
{
    juce::MessageManager::getInstance();
    Loop::registerLinuxEventLoopListener (follower());
    follower().fdCallbacksChanged();
    // Read the fonts now rather than when a window opens while audio runs.
    juce::Font::findAllTypefaceNames();
}

void useThisThread()
{
    auto* manager = juce::MessageManager::getInstance();
    if (! manager->isThisTheMessageThread())
        manager->setCurrentThreadAsMessageThread();
}

void dispatch()
{
    const auto all = watched;
    for (const auto descriptor : all)
        Loop::invokeEventLoopCallbackForFd (descriptor);
}

void serveSoon()
{
    if (juce::Desktop::getInstance().getNumComponents() > 0)
        host.soon();
}

bool hasDisplay() { return desktop::X11Window::isDisplayAvailable(); }

}
