#pragma once
#include "common/OrvaneDspMaxConsoleNotifier.h"
#include "osc/OrvaneDspOscBundle.h"
#include "osc/OrvaneDspOscDocumentation.h"

#include <mutex>

namespace qel
{

/** The face by which a component is driven and inspected with messages. To answer one more address in a class:
    1. a row in the class's table: signature letters, address, what it does; 2. its state in getOscState.
    Signatures are tested before addresses, which keeps the look-up off the path of messages with wrong arguments.
    Message thread; a program that comes to the state from another thread as well holds the mutex around each call. */
class OscInterface : public MaxConsoleNotifier
{
public:
    ~OscInterface() override = default;

    /** True if the message was understood; then it has been applied. */
    virtual bool processOscMessage (const OSCMessage& message);
    /** One message for each parameter, in a fixed order. */
    virtual OSCBundle getOscState();
    /** What the family's objects all document; most classes keep it. */
    virtual Vector<OscDocumentation::Entry> getOscDocumentation();
    /** Called by who embeds the component when a preset was loaded into it or exported from it. */
    virtual void oscPresetLoaded() {}
    virtual void oscPresetExported() {}

    [[nodiscard]] std::recursive_mutex& mutex() noexcept { return oscMutex; }

protected:
    std::recursive_mutex oscMutex;
    OSCBundle oscState;
    /** At the disposal of the class that embeds the interface. */
    String oscName, oscPath, oscPreset;
    bool oscEnabled = true;
};

}
