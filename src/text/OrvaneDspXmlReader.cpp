#include "text/OrvaneDspXmlReader.h"

#include <utility>

namespace qel
{

template <typename Source>
std::unique_ptr<XmlElement> XmlReader::treeOf (const Source& source) noexcept
{
    const bool isWhole = parser.parse (source, *this);
    open.clear();
    auto tree = std::exchange (root, nullptr);
    return isWhole ? std::move (tree) : nullptr;
}

std::unique_ptr<XmlElement> XmlReader::read (const String& document) noexcept { return treeOf (document.str()); }
std::unique_ptr<XmlElement> XmlReader::read (const File& file) noexcept { return treeOf (file); }

void XmlReader::startElement (std::string_view tagName, const XmlAttributes& attributes)
{
    auto element = std::make_unique<XmlElement> (String (tagName));
    for (const auto& [name, value] : attributes)
        element->append (String (name), value);

    auto* const added = element.get();
    if (open.empty())
        root = std::move (element);
    else
        open.back()->addChild (std::move (element));
    open.push_back (added);
}

void XmlReader::endElement() { open.pop_back(); }

void XmlReader::text (std::string_view characters)
{
    open.back()->addChild (XmlElement::createTextNode (String (characters)));
}

}
