#pragma once
#include "common/OrvaneDspColour.h"
#include "math/OrvaneDspVector.h"
#include "osc/OrvaneDspOscAddress.h"
#include "osc/OrvaneDspOscArgument.h"

namespace qel
{

/** An address with typed arguments. Message thread only, since it asks the shared cache of addresses. */
class OSCMessage
{
public:
    OSCMessage() = default;
    explicit OSCMessage (const OscAddress& to) : destination (to) {}
    /** Raises "OSC format error: ..." as the address does. */
    explicit OSCMessage (const String& to) : destination (to) {}

    /** Adds an argument: OSCMessage ("/minmax").add (20.f).add (40.f). */
    template <typename Value>
    OSCMessage& add (const Value& value)
    {
        arguments.push_back (OSCArgument (value));
        return *this;
    }

    [[nodiscard]] const OscAddress& address() const noexcept { return destination; }
    [[nodiscard]] std::size_t size() const noexcept { return arguments.size(); }
    /** Not bounds-tested. */
    [[nodiscard]] const OSCArgument& operator[] (std::size_t index) const noexcept { return arguments[index]; }

    /** Whether the message is meant for an address; wildcards count on either side. Raises as the address does. */
    [[nodiscard]] bool matches (const String& wanted) const;
    /** The same over the first parts only, as OscAddress::startsWith. */
    [[nodiscard]] bool startsWith (const String& wanted) const;

    /** Whether there is exactly one argument, of this letter (see OSCArgument::is). */
    [[nodiscard]] bool has (char letter) const noexcept;
    /** Whether each letter accepts its argument. When exact there is one letter for each argument; else there may be
        arguments left over. */
    [[nodiscard]] bool has (const char* letters, bool exact) const noexcept;

    /** All arguments, if each is a number; else empty. */
    [[nodiscard]] Vector<float> toFloats() const;
    /** Red, green, blue, alpha, each clipped to 0 to 1; a missing one is 0, a missing alpha 1. */
    [[nodiscard]] Colour toColour() const;

private:
    OscAddress destination;
    Vector<OSCArgument> arguments;
};

}
