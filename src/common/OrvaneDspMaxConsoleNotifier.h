#pragma once
#include "common/OrvaneDspListeners.h"
#include "text/OrvaneDspString.h"

namespace qel
{

/** Base of classes that log to the Max console. Knows nothing of Max, only its listeners. The owner's thread only. */
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
