#pragma once
#include "common/OrvaneDspMaxConsoleNotifier.h"
#include "osc/OrvaneDspOscBundle.h"
#include "osc/OrvaneDspOscDocumentation.h"

#include <mutex>

namespace qel
{

/** Message interface that drives and inspects a component. To add an address to a class:
    1. a row in the class's table: signature letters, address, action; 2. its state in getOscState.
    Signatures are checked before addresses, so that messages with wrong arguments skip the look-up.
    Message thread; a program that accesses the state from another thread too must hold the mutex around each call. */
class OscInterface : public MaxConsoleNotifier
{
public:
    ~OscInterface() override = default;

    /** Returns whether the message was recognised; if so, it has been applied. */
    virtual bool processOscMessage (const OSCMessage& message);
    /** One message for each parameter, in a fixed order. */
    virtual OSCBundle getOscState();
    /** The addresses that all objects of the family document; most classes keep it. */
    virtual Vector<OscDocumentation::Entry> getOscDocumentation();
    /** Call after a preset was loaded into the component or exported from it. */
    virtual void oscPresetLoaded() {}
    virtual void oscPresetExported() {}

    [[nodiscard]] std::recursive_mutex& mutex() noexcept { return oscMutex; }

protected:
    std::recursive_mutex oscMutex;
    OSCBundle oscState;
    /** For use by the class that embeds the interface. */
    String oscName, oscPath, oscPreset;
    bool oscEnabled = true;
};

}
