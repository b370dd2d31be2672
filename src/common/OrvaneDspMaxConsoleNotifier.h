#pragma once
#include "common/OrvaneDspListeners.h"
#include "text/OrvaneDspString.h"

namespace qel
{

/** The base of classes that send text to the Max console: they know nothing of Max, only who listens. One thread,
    that of the owner. */
class MaxConsoleNotifier
{
public:
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void postToMaxConsole (const String& text) = 0;
    };

    virtual ~MaxConsoleNotifier() = default;

    void addMaxConsoleListener (Listener* listener) { listeners.add (listener); }
    void removeMaxConsoleListener (Listener* listener) noexcept { listeners.remove (listener); }

protected:
    void postToMaxConsole (const String& text);

private:
    Listeners<Listener> listeners;
};

}
