#include "text/OrvaneDspXmlElement.h"
#include "text/OrvaneDspXmlReader.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace qel
{

namespace
{

/** Under this name a text node keeps its text. */
const String textOfNode = "text";

template <typename Number>
std::string_view shortest (std::array<char, 64>& buffer, Number value)
{
    const auto magnitude = std::abs (value);
    const bool isPlain = magnitude == 0 || (magnitude >= Number (1e-5) && magnitude < Number (1e7));
    const auto form = isPlain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto [end, fault] = std::to_chars (buffer.data(), buffer.data() + buffer.size(), value, form);
    return { buffer.data(), fault == std::errc() ? static_cast<std::size_t> (end - buffer.data()) : 0 };
}

/** The digits of single precision do for a float, unless reading them as a double and then narrowing it goes astray:
    rounding twice can end one step aside. */
String numberText (double value)
{
    std::array<char, 64> buffer{};
    if (std::abs (value) <= static_cast<double> (std::numeric_limits<float>::max())) {
        const auto single = static_cast<float> (value);
        const auto text = shortest (buffer, single);
        double readBack = 0;
        std::from_chars (text.data(), text.data() + text.size(), readBack);
        if (static_cast<double> (single) == value && static_cast<float> (readBack) == single)
            return String (text);
    }
    return String (shortest (buffer, value));
}

}

XmlElement::XmlElement (const String& tagName) : tag (tagName) {}

/** Link by link: neither a deep tree nor a long list may unwind through the stack. */
XmlElement::~XmlElement()
{
    while (attributes)
        attributes = std::move (attributes->next);

    auto pending = std::move (childList);
    while (pending) {
        const auto element = std::move (pending);
        pending = std::move (element->next);
        if (element->childList) {
            element->lastChild->next = std::move (pending);
            pending = std::move (element->childList);
        }
    }
}

std::unique_ptr<XmlElement> XmlElement::createTextNode (const String& text)
{
    auto node = std::make_unique<XmlElement> (String());
    node->append (textOfNode, text);
    return node;
}

std::unique_ptr<XmlElement> XmlElement::parse (const File& file) { return XmlReader().read (file); }

const String& XmlElement::text() const { return isTextNode() && attributes ? attributes->value : String::emptyText(); }

std::size_t XmlElement::numberOfChildren() const noexcept
{
    std::size_t count = 0;
    for (const auto* element = firstChild(); element != nullptr; element = element->nextSibling())
        ++count;
    return count;
}

const XmlElement* XmlElement::child (std::size_t index) const noexcept
{
    const auto* element = firstChild();
    for (; element != nullptr && index > 0; --index)
        element = element->nextSibling();
    return element;
}

XmlElement* XmlElement::addChild (std::unique_ptr<XmlElement> child) noexcept
{
    if (! child)
        return nullptr;
    auto& end = lastChild == nullptr ? childList : lastChild->next;
    end = std::move (child);
    return lastChild = end.get();
}

const XmlElement::Attribute* XmlElement::find (const String& name) const noexcept
{
    const auto* attribute = attributes.get();
    while (attribute != nullptr && attribute->name != name)
        attribute = attribute->next.get();
    return attribute;
}

void XmlElement::append (const String& name, const String& value)
{
    auto& end = lastAttribute == nullptr ? attributes : lastAttribute->next;
    end = std::make_unique<Attribute> (Attribute{ name, value, nullptr });
    lastAttribute = end.get();
}

bool XmlElement::hasAttribute (const String& name) const noexcept { return find (name) != nullptr; }

String XmlElement::textAttribute (const String& name, const String& fallback) const
{
    const auto* const attribute = find (name);
    return attribute == nullptr ? fallback : attribute->value;
}

int XmlElement::intAttribute (const String& name, int fallback) const noexcept
{
    const auto* const attribute = find (name);
    return attribute == nullptr ? fallback : attribute->value.toInt();
}

double XmlElement::doubleAttribute (const String& name, double fallback) const noexcept
{
    const auto* const attribute = find (name);
    return attribute == nullptr ? fallback : attribute->value.toDouble();
}

void XmlElement::setAttribute (const String& name, const String& value)
{
    if (auto* const attribute = const_cast<Attribute*> (find (name)))
        attribute->value = value;
    else
        append (name, value);
}

void XmlElement::setAttribute (const String& name, int value) { setAttribute (name, String (value)); }
void XmlElement::setAttribute (const String& name, double value) { setAttribute (name, numberText (value)); }

}
