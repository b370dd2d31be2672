#pragma once
#include "text/OrvaneDspXmlElement.h"
#include "text/OrvaneDspXmlParser.h"

#include <memory>
#include <vector>

namespace qel
{

/** Reads XML into a tree. Never throws, whatever the text. White space between elements is dropped. */
class XmlReader : private XmlVisitor
{
public:
    /** The root element; null on failure, and lastError() says why. */
    [[nodiscard]] std::unique_ptr<XmlElement> read (const String& document) noexcept;
    [[nodiscard]] std::unique_ptr<XmlElement> read (const File& file) noexcept;

    /** Error of the last read; empty if it succeeded. */
    [[nodiscard]] const String& lastError() const noexcept { return parser.lastError(); }

private:
    template <typename Source>
    std::unique_ptr<XmlElement> treeOf (const Source& source) noexcept;

    void startElement (std::string_view tagName, const XmlAttributes& attributes) override;
    void endElement() override;
    void text (std::string_view characters) override;

    XmlParser parser;
    std::unique_ptr<XmlElement> root;
    std::vector<XmlElement*> open;
};

}
