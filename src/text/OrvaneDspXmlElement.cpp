#include "text/OrvaneDspXmlElement.h"
#include "files/OrvaneDspFileWriter.h"
#include "files/OrvaneDspTemporaryFile.h"
#include "text/OrvaneDspXmlReader.h"

#include <utility>
#include <vector>

namespace qel
{

namespace
{

/** A text node stores its text under this name. */
const String textOfNode = "text";

}

XmlElement::XmlElement (const String& tagName) : tag (tagName) {}

/** Iterative: neither a deep tree nor a long list may overflow the stack. */
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
void XmlElement::setAttribute (const String& name, double value) { setAttribute (name, xmlNumber (value)); }

void XmlElement::writeStart (XmlWriter& writer) const
{
    writer.start (tag.str());
    for (const auto* attribute = attributes.get(); attribute != nullptr; attribute = attribute->next.get())
        writer.attribute (attribute->name.str(), attribute->value.str());
}

/** Iterative: keeps the next child of each open element in a list. */
void XmlElement::writeTree (XmlWriter& writer) const
{
    if (isTextNode())
        return writer.text (text().str());

    writeStart (writer);
    std::vector<const XmlElement*> nextChildren{ firstChild() };
    while (! nextChildren.empty()) {
        const auto* const child = nextChildren.back();
        if (child == nullptr) {
            writer.end();
            nextChildren.pop_back();
            continue;
        }
        nextChildren.back() = child->nextSibling();
        if (child->isTextNode()) {
            writer.text (child->text().str());
        } else {
            child->writeStart (writer);
            nextChildren.push_back (child->firstChild());
        }
    }
}

void XmlElement::writeTo (MemoryOutput& output, const Layout& layout) const
{
    XmlWriter writer (output, layout);
    writer.startDocument();
    writeTree (writer);
    writer.endDocument();
}

bool XmlElement::writeTo (const File& file, const String& dtd, const String& encoding, std::size_t lineWrapLength) const
{
    Layout layout;
    layout.dtd = dtd;
    layout.encoding = encoding;
    layout.lineWrapLength = lineWrapLength;
    MemoryOutput document (2048);
    writeTo (document, layout);

    return replaceFile (file, [&] (FileWriter& writer) { return writer.write (document); });
}

}
