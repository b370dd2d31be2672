#pragma once
#include "files/OrvaneDspFile.h"
#include "text/OrvaneDspString.h"
#include "text/OrvaneDspXmlElement.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qel
{

/** Reads XML into a tree. It never raises, and never recurses: no text, however deep, can end the process.
    White space between elements is dropped; a header, a DOCTYPE, comments and instructions are skipped. */
class XmlReader
{
public:
    /** The root element, or null; then lastError() says why. */
    [[nodiscard]] std::unique_ptr<XmlElement> read (const String& document) noexcept;
    [[nodiscard]] std::unique_ptr<XmlElement> read (const File& file) noexcept;

    /** Of the last read; empty if it went well. */
    [[nodiscard]] const String& lastError() const noexcept { return error; }

private:
    bool readDocument();
    bool skipAside (bool doctypeToo);
    bool skipDoctype();
    bool readContent();
    bool readStartTag();
    bool readAttribute (XmlElement& element);
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
    bool failAtCharacter (const String& tagName);

    std::string_view rest;
    String error;
    std::unique_ptr<XmlElement> root;
    std::vector<XmlElement*> open;
    std::vector<std::string_view> names;
};

}
