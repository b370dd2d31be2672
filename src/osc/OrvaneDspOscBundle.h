#pragma once
#include "osc/OrvaneDspOscMessage.h"

#include <cstdint>
#include <memory>

namespace qel
{

class OSCBundle;

/** A bundle element: a message or a nested bundle, owned. Copies are deep. */
class OSCBundleElement
{
public:
    explicit OSCBundleElement (const OSCMessage& message);
    explicit OSCBundleElement (const OSCBundle& bundle);
    OSCBundleElement (const OSCBundleElement& other);
    OSCBundleElement (OSCBundleElement&& other) noexcept;
    OSCBundleElement& operator= (OSCBundleElement other) noexcept;
    ~OSCBundleElement();

    [[nodiscard]] bool isMessage() const noexcept { return ownMessage != nullptr; }
    [[nodiscard]] bool isBundle() const noexcept { return ownBundle != nullptr; }
    /** Both throw "Access error in OSC bundle element." if the element is of the other kind. */
    [[nodiscard]] const OSCMessage& message() const;
    [[nodiscard]] const OSCBundle& bundle() const;

private:
    std::unique_ptr<OSCMessage> ownMessage;
    std::unique_ptr<OSCBundle> ownBundle;
};

/** Messages and bundles in insertion order. */
class OSCBundle : public Vector<OSCBundleElement>
{
public:
    using Element = OSCBundleElement;

    /** 64 bits; 1 means immediately. */
    std::uint64_t timeTag = 1;

    void add (const OSCMessage& message);
    void add (const OSCBundle& bundle);

    /** Adds a message with one argument, or four (red, green, blue, alpha) for a colour. Throws as the address does. */
    void add (const String& address, std::int32_t value);
    void add (const String& address, float value);
    void add (const String& address, bool value);
    void add (const String& address, const char* value);
    void add (const String& address, const String& value);
    void add (const String& address, const Colour& value);

    /** Appends copies of another bundle's elements. */
    void append (const OSCBundle& other);
};

}
