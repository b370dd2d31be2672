#pragma once
#include "files/OrvaneDspFile.h"
#include "memory/OrvaneDspMemoryOutput.h"
#include "text/OrvaneDspString.h"
#include "text/OrvaneDspXmlWriter.h"

#include <memory>

namespace qel
{

/** An element or a text node of an XML tree of any depth. Each tree on one thread. */
class XmlElement
{
public:
    using Layout = XmlLayout;

    explicit XmlElement (const String& tagName);
    XmlElement (const XmlElement&) = delete;
    XmlElement& operator= (const XmlElement&) = delete;
    ~XmlElement();

    /** A text node, to add as a child. */
    [[nodiscard]] static std::unique_ptr<XmlElement> createTextNode (const String& text);
    /** The root of a file's document; null if it is not well-formed XML. Never throws; XmlReader reports the reason. */
    [[nodiscard]] static std::unique_ptr<XmlElement> parse (const File& file);

    [[nodiscard]] const String& tagName() const noexcept { return tag; }
    [[nodiscard]] bool hasTagName (const String& name) const noexcept { return tag == name; }
    [[nodiscard]] bool isTextNode() const noexcept { return tag.empty(); }
    /** A text node's text; empty for an element. */
    [[nodiscard]] const String& text() const;

    /** Includes text nodes. */
    [[nodiscard]] std::size_t numberOfChildren() const noexcept;
    /** Null past the end. To iterate over children, use firstChild and nextSibling. */
    [[nodiscard]] const XmlElement* child (std::size_t index) const noexcept;
    [[nodiscard]] const XmlElement* firstChild() const noexcept { return childList.get(); }
    [[nodiscard]] const XmlElement* nextSibling() const noexcept { return next.get(); }
    /** Appends a child and returns it; null is ignored. */
    XmlElement* addChild (std::unique_ptr<XmlElement> child) noexcept;

    [[nodiscard]] bool hasAttribute (const String& name) const noexcept;
    [[nodiscard]] String textAttribute (const String& name, const String& fallback = {}) const;
    /** Parses the leading number, 0 if there is none, clamped to int; returns the fallback only if the attribute is
        missing. */
    [[nodiscard]] int intAttribute (const String& name, int fallback = 0) const noexcept;
    /** As above, in any locale; "inf", "nan" and out-of-range numbers are returned as such. */
    [[nodiscard]] double doubleAttribute (const String& name, double fallback = 0.0) const noexcept;
    /** Overwrites an existing attribute; appends a new one. */
    void setAttribute (const String& name, const String& value);
    void setAttribute (const String& name, const char* value) { setAttribute (name, String (value)); }
    void setAttribute (const String& name, int value);
    /** With as many digits as needed to read the same number back. */
    void setAttribute (const String& name, double value);

    /** Writes the document as UTF-8, with "\r\n" line ends. */
    void writeTo (MemoryOutput& output, const Layout& layout) const;
    /** Writes a temporary file and moves it over the target; on failure the old file remains. Throws as FileWriter. */
    bool writeTo (const File& file, const String& dtd, const String& encoding, std::size_t lineWrapLength) const;

private:
    friend class XmlReader;

    struct Attribute
    {
        String name, value;
        std::unique_ptr<Attribute> next;
    };

    [[nodiscard]] const Attribute* find (const String& name) const noexcept;
    void append (const String& name, const String& value);
    void writeStart (XmlWriter& writer) const;
    void writeTree (XmlWriter& writer) const;

    std::unique_ptr<XmlElement> next;
    std::unique_ptr<XmlElement> childList;
    std::unique_ptr<Attribute> attributes;
    XmlElement* lastChild = nullptr;
    Attribute* lastAttribute = nullptr;
    String tag;
};

}
