#include "max/XmlPage.h"

#include "text/OrvaneDspXmlWriter.h"

namespace orvanemax
{
namespace
{

std::string startOf (const char* name, const XmlPage::Attributes& attributes)
{
    std::string tag = std::string ("<") + name;
    for (const auto& [key, value] : attributes)
        tag += std::string (" ") + key + "=\"" + escaped (value) + "\"";
    return tag;
}

}

std::string escaped (const std::string& text)
{
    std::string out;
    for (const char c : text)
        if (const auto* const escape = qel::xmlEscape (c))
            out += escape;
        else if (static_cast<unsigned char> (c) >= 0x20 || c == '\t' || c == '\n')
            out += c; // other control characters cannot be represented in XML
    return out;
}

void XmlPage::line (const std::string& text) { out += std::string (level, '\t') + text + "\n"; }

void XmlPage::open (const char* name, const Attributes& attributes)
{
    line (startOf (name, attributes) + ">");
    ++level;
}

void XmlPage::close (const char* name)
{
    --level;
    line (std::string ("</") + name + ">");
}

void XmlPage::empty (const char* name, const Attributes& attributes) { line (startOf (name, attributes) + " />"); }

void XmlPage::element (const char* name, const std::string& text, const Attributes& attributes)
{
    line (startOf (name, attributes) + ">" + text + "</" + name + ">");
}

}
