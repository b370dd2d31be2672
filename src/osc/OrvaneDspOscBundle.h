#pragma once
#include "osc/OrvaneDspOscMessage.h"

#include <cstdint>
#include <memory>

namespace qel
{

class OSCBundle;

/** What a bundle holds: a message or another bundle, owned. Copies are deep. */
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
    /** Both raise "Access error in OSC bundle element." when the element holds the other kind. */
    [[nodiscard]] const OSCMessage& message() const;
    [[nodiscard]] const OSCBundle& bundle() const;

private:
    std::unique_ptr<OSCMessage> ownMessage;
    std::unique_ptr<OSCBundle> ownBundle;
};

/** Messages and bundles in the order in which they were added. */
class OSCBundle : public Vector<OSCBundleElement>
{
public:
    using Element = OSCBundleElement;

    /** 64 bits; 1 means immediately. */
    std::uint64_t timeTag = 1;

    void add (const OSCMessage& message);
    void add (const OSCBundle& bundle);

    /** A message with one argument, four (red, green, blue, alpha) for a colour. Raise as the address does. */
    void add (const String& address, std::int32_t value);
    void add (const String& address, float value);
    void add (const String& address, bool value);
    void add (const String& address, const char* value);
    void add (const String& address, const String& value);
    void add (const String& address, const Colour& value);

    /** Copies the elements of another bundle behind the present ones. */
    void append (const OSCBundle& other);
};

}
