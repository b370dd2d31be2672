#pragma once
#include "common/OrvaneDspColour.h"
#include "math/OrvaneDspVector.h"
#include "osc/OrvaneDspOscAddress.h"
#include "osc/OrvaneDspOscArgument.h"

namespace qel
{

/** An address with typed arguments. Message thread only, because it uses the shared address cache. */
class OSCMessage
{
public:
    OSCMessage() = default;
    explicit OSCMessage (const OscAddress& to) : destination (to) {}
    /** Throws "OSC format error: ..." as the address does. */
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
    /** Not bounds-checked. */
    [[nodiscard]] const OSCArgument& operator[] (std::size_t index) const noexcept { return arguments[index]; }

    /** Whether the message is addressed to this; wildcards work on either side. Throws as the address does. */
    [[nodiscard]] bool matches (const String& wanted) const;
    /** Matches only the leading parts, as OscAddress::startsWith does. */
    [[nodiscard]] bool startsWith (const String& wanted) const;

    /** Whether there is exactly one argument, accepted by this letter (see OSCArgument::is). */
    [[nodiscard]] bool has (char letter) const noexcept;
    /** Whether each letter accepts its argument. If exact, the counts must match; otherwise extra arguments are
        allowed. */
    [[nodiscard]] bool has (const char* letters, bool exact) const noexcept;

    /** All arguments if all are numbers; otherwise empty. */
    [[nodiscard]] Vector<float> toFloats() const;
    /** Red, green, blue, alpha, each clamped to 0 to 1. Missing components default to 0, alpha to 1. */
    [[nodiscard]] Colour toColour() const;

private:
    OscAddress destination;
    Vector<OSCArgument> arguments;
};

}
