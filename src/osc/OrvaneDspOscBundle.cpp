#include "osc/OrvaneDspOscBundle.h"

namespace qel
{

OSCBundleElement::OSCBundleElement (const OSCMessage& message) : ownMessage (std::make_unique<OSCMessage> (message)) {}

OSCBundleElement::OSCBundleElement (const OSCBundle& bundle) : ownBundle (std::make_unique<OSCBundle> (bundle)) {}

OSCBundleElement::OSCBundleElement (const OSCBundleElement& other)
    : ownMessage (other.isMessage() ? std::make_unique<OSCMessage> (*other.ownMessage) : nullptr),
      ownBundle (other.isBundle() ? std::make_unique<OSCBundle> (*other.ownBundle) : nullptr)
{}

OSCBundleElement::OSCBundleElement (OSCBundleElement&& other) noexcept = default;

OSCBundleElement& OSCBundleElement::operator= (OSCBundleElement other) noexcept
{
    ownMessage.swap (other.ownMessage);
    ownBundle.swap (other.ownBundle);
    return *this;
}

OSCBundleElement::~OSCBundleElement() = default;

const OSCMessage& OSCBundleElement::message() const
{
    if (! isMessage())
        throw Exception ("Access error in OSC bundle element.", QEL_HERE);
    return *ownMessage;
}

const OSCBundle& OSCBundleElement::bundle() const
{
    if (! isBundle())
        throw Exception ("Access error in OSC bundle element.", QEL_HERE);
    return *ownBundle;
}

void OSCBundle::add (const OSCMessage& message) { push_back (Element (message)); }

void OSCBundle::add (const OSCBundle& bundle) { push_back (Element (bundle)); }

void OSCBundle::add (const String& address, std::int32_t value) { add (OSCMessage (address).add (value)); }

void OSCBundle::add (const String& address, float value) { add (OSCMessage (address).add (value)); }

void OSCBundle::add (const String& address, bool value) { add (OSCMessage (address).add (value)); }

void OSCBundle::add (const String& address, const char* value) { add (address, String (value)); }

void OSCBundle::add (const String& address, const String& value) { add (OSCMessage (address).add (value)); }

void OSCBundle::add (const String& address, const Colour& value)
{
    add (OSCMessage (address).add (value.red).add (value.green).add (value.blue).add (value.alpha));
}

void OSCBundle::append (const OSCBundle& other)
{
    const auto count = other.size(); // the other may be this bundle itself
    for (std::size_t i = 0; i < count; ++i)
        push_back (other[i]);
}

}
