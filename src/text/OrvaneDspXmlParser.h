#pragma once
#include "files/OrvaneDspFile.h"
#include "text/OrvaneDspString.h"

#include <string>
#include <string_view>
#include <vector>

namespace qel
{

/** One attribute of an element, its escapes decoded. */
struct XmlAttribute
{
    std::string_view name;
    std::string value;
};

using XmlAttributes = std::vector<XmlAttribute>;

/** Receives a document piece by piece, in its order. What it is given is valid during the call only. It raises
    nothing but a lack of memory. */
class XmlVisitor
{
public:
    virtual ~XmlVisitor() = default;

    /** The names of the attributes are distinct. */
    virtual void startElement (std::string_view tagName, const XmlAttributes& attributes) = 0;
    /** The innermost element that is open ends. */
    virtual void endElement() = 0;
    /** A piece of text inside an element; one that is white space alone is not reported. */
    virtual void text (std::string_view characters) = 0;
};

/** Parses XML without building a tree: memory for the text alone. It never raises and never recurses, so no document,
    however deep, can end the process. A header, a DOCTYPE, comments and instructions are skipped.
    A visitor learns of a malformed document only by the result, after it was given what stands before the fault. */
class XmlParser
{
public:
    /** Whether the document is well-formed to its end; if not, lastError() says why. */
    [[nodiscard]] bool parse (std::string_view document, XmlVisitor& visitor) noexcept;
    /** The file is read into memory first: whatever happens to it meanwhile, all of the parse sees the same text. */
    [[nodiscard]] bool parse (const File& file, XmlVisitor& visitor) noexcept;

    /** Of the last parse; empty if it succeeded. */
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
    std::vector<std::string_view> open; // names of the elements that are open
    XmlAttributes attributes;
    std::vector<std::string_view> names;
};

}
