#pragma once
#include "files/OrvaneDspFile.h"
#include "memory/OrvaneDspMemoryOutput.h"
#include "text/OrvaneDspString.h"
#include "text/OrvaneDspXmlWriter.h"

#include <memory>

namespace qel
{

/** An element of an XML tree, or a piece of text in one. A tree may be of any depth. Each tree on one thread. */
class XmlElement
{
public:
    using Layout = XmlLayout;

    explicit XmlElement (const String& tagName);
    XmlElement (const XmlElement&) = delete;
    XmlElement& operator= (const XmlElement&) = delete;
    ~XmlElement();

    /** A piece of text, to be a child. */
    [[nodiscard]] static std::unique_ptr<XmlElement> createTextNode (const String& text);
    /** The root of a file's document, or null if the file is no XML. Never raises; XmlReader tells more. */
    [[nodiscard]] static std::unique_ptr<XmlElement> parse (const File& file);

    [[nodiscard]] const String& tagName() const noexcept { return tag; }
    [[nodiscard]] bool hasTagName (const String& name) const noexcept { return tag == name; }
    [[nodiscard]] bool isTextNode() const noexcept { return tag.empty(); }
    /** A text node's text; empty for an element. */
    [[nodiscard]] const String& text() const;

    /** Pieces of text count as children. */
    [[nodiscard]] std::size_t numberOfChildren() const noexcept;
    /** Null beyond the end. To walk all children, follow firstChild and nextSibling. */
    [[nodiscard]] const XmlElement* child (std::size_t index) const noexcept;
    [[nodiscard]] const XmlElement* firstChild() const noexcept { return childList.get(); }
    [[nodiscard]] const XmlElement* nextSibling() const noexcept { return next.get(); }
    /** Goes to the end of the children; null is ignored. Returns the child. */
    XmlElement* addChild (std::unique_ptr<XmlElement> child) noexcept;

    [[nodiscard]] bool hasAttribute (const String& name) const noexcept;
    [[nodiscard]] String textAttribute (const String& name, const String& fallback = {}) const;
    /** The number that the text begins with, 0 if it begins with none; the fallback only if the attribute is missing.
        Beyond an int's range it is the nearest int. */
    [[nodiscard]] int intAttribute (const String& name, int fallback = 0) const noexcept;
    /** As above, in any locale; "inf", "nan" and numbers beyond a double's range come as what they are. */
    [[nodiscard]] double doubleAttribute (const String& name, double fallback = 0.0) const noexcept;
    /** An attribute of that name is overwritten; a new one goes to the end. */
    void setAttribute (const String& name, const String& value);
    void setAttribute (const String& name, const char* value) { setAttribute (name, String (value)); }
    void setAttribute (const String& name, int value);
    /** With as many digits as it takes to read the same number back. */
    void setAttribute (const String& name, double value);

    /** The document as UTF-8 text, lines ending with "\r\n". */
    void writeTo (MemoryOutput& output, const Layout& layout) const;
    /** Writes beside the file and moves the whole over it; on failure the old file stands. Raises as FileWriter. */
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
