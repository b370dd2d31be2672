#pragma once
#include "files/OrvaneDspFile.h"
#include "text/OrvaneDspString.h"

#include <string>
#include <string_view>
#include <vector>

namespace qel
{

/** One attribute of an element, unescaped. */
struct XmlAttribute
{
    std::string_view name;
    std::string value;
};

using XmlAttributes = std::vector<XmlAttribute>;

/** Receives a document's pieces in order. Arguments are valid only during the call. May throw only
    std::bad_alloc. */
class XmlVisitor
{
public:
    virtual ~XmlVisitor() = default;

    /** Attribute names are unique. */
    virtual void startElement (std::string_view tagName, const XmlAttributes& attributes) = 0;
    /** Ends the innermost open element. */
    virtual void endElement() = 0;
    /** Text inside an element; text of only white space is not reported. */
    virtual void text (std::string_view characters) = 0;
};

/** Parses XML without building a tree; stores only the text. Never throws and never recurses, so no document, however
    deep, can crash the process. Headers, DOCTYPE, comments and processing instructions are skipped. A malformed
    document shows only in the result: the visitor has already received what precedes the fault. */
class XmlParser
{
public:
    /** Returns whether the document is well-formed to its end; if not, lastError() says why. */
    [[nodiscard]] bool parse (std::string_view document, XmlVisitor& visitor) noexcept;
    /** Loads the file first, so that the whole parse sees the same text if the file changes meanwhile. */
    [[nodiscard]] bool parse (const File& file, XmlVisitor& visitor) noexcept;

    /** Error of the last parse; empty if it succeeded. */
    [[nodiscard]] const String& lastError() const noexcept { return error; }

private:
    bool readDocument();
    bool skipAside (bool doctypeToo);
    bool skipDoctype();
    bool readContent();
    bool readStartTag();
    bool readAttribute (std::string_view tagName);
    bool hasDistinctNames();
    bool readEndTag();
    bool readText();
    bool readCharacterData();
    bool decode (std::string_view raw, std::string& decoded);

    void skipWhiteSpace() noexcept;
    [[nodiscard]] std::string_view takeName() noexcept;
    [[nodiscard]] bool startsWith (std::string_view start) const noexcept
    {
        return rest.substr (0, start.size()) == start;
    }
    bool skipThrough (std::string_view opening, std::string_view closing, const char* complaint);
    bool fail (const String& complaint);
    bool failAtCharacter (std::string_view tagName);

    XmlVisitor* visitor = nullptr;
    std::string_view rest, rootName;
    String error;
    std::vector<std::string_view> open; // names of the open elements
    XmlAttributes attributes;
    std::vector<std::string_view> names;
};

}
