#include "host/pd/MessageLoop.h"
#include "max/window/X11Window.h"
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <juce_events/native/juce_linux_EventLoopInternal.h>
#include <vector>

namespace MessageLoop
{

namespace
{
using Loop = juce::LinuxEventLoopInternal;

Watch host;
std::vector<int> watched;

/** Keeps the host's list of descriptors equal to JUCE's. */
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

/** Folders with the fonts that JUCE prefers. It would open every font file of the desktop, in the thread that computes
    the audio; one of these folders is enough. */
constexpr const char* fontFolders[] = {
    "/usr/share/fonts/truetype/dejavu",     "/usr/share/fonts/dejavu-sans-fonts", "/usr/share/fonts/dejavu",
    "/usr/share/fonts/truetype/liberation", "/usr/share/fonts/liberation-sans",   "/usr/share/fonts/liberation",
};

void readFewFonts()
{
    constexpr const char* variable = "JUCE_FONT_PATH";
    std::error_code error;
    const auto* folder = std::find_if (std::begin (fontFolders), std::end (fontFolders),
                                       [&] (const char* each) { return std::filesystem::is_directory (each, error); });
    if (std::getenv (variable) != nullptr || folder == std::end (fontFolders))
        return;
    ::setenv (variable, *folder, 0);
    juce::Font::findAllTypefaceNames(); // builds the list, which is kept
    ::unsetenv (variable);
}
}

void setWatch (const Watch& watch) { host = watch; }

void start()
{
    juce::MessageManager::getInstance();
    Loop::registerLinuxEventLoopListener (follower());
    follower().fdCallbacksChanged();
    readFewFonts();
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

bool hasDisplay() { return X11Window::isDisplayAvailable(); }

}
