#include "common/OrvaneDspTime.h"
#include "common/OrvaneDspVersion.h"
#include "files/OrvaneDspFileWriter.h"
#include "files/OrvaneDspTemporaryFile.h"
#include "text/OrvaneDspXmlElement.h"

#include <string_view>
#include <vector>

namespace qel
{

/** Writes a tree without recursion: it keeps the elements that are still open in a list of its own. */
class XmlWriter
{
public:
    XmlWriter (MemoryOutput& outputToUse, const XmlElement::Layout& layoutToUse)
        : output (outputToUse), layout (layoutToUse)
    {}

    void header();
    void tree (const XmlElement& root);

private:
    struct Open
    {
        const XmlElement* element;
        const XmlElement* nextChild;
        std::size_t indentation;
        bool isAfterText;
    };

    void start (const XmlElement& element, std::size_t indentation);
    void attributes (const XmlElement& element, std::size_t column);
    void child (Open& parent);
    void end (const Open& element);
    void escaped (const String& text, bool inAttribute);
    void newLine (std::size_t indentation);

    MemoryOutput& output;
    const XmlElement::Layout& layout;
    std::vector<Open> open;
};

namespace
{

constexpr const char* lineEnd = "\r\n";

/** What stands for a character that can't stand for itself; null for one that can, or that goes by its number. */
const char* namedEscape (char c) noexcept
{
    switch (c) {
    case '"':
        return "&quot;";
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    default:
        return nullptr;
    }
}

bool isSafe (char c, bool inAttribute) noexcept
{
    const bool isLineBreak = c == '\n' || c == '\r';
    return (c >= ' ' && c <= '~' && namedEscape (c) == nullptr) || (isLineBreak && ! inAttribute);
}

}

void XmlWriter::header()
{
    output << "<?xml version=\"1.0\" encoding=\"" << layout.encoding << "\" standalone=\"yes\"?>";
    if (layout.allOnOneLine) {
        output << ' ';
        return;
    }
    output << lineEnd << lineEnd << "<!-- created from " << versionText (false) << " - "
           << Time::now().toText (Time::Parts()) << " -->" << lineEnd << lineEnd;
}

void XmlWriter::newLine (std::size_t indentation)
{
    if (layout.allOnOneLine)
        return;
    output << lineEnd;
    output.writeRepeated (' ', indentation);
}

void XmlWriter::tree (const XmlElement& root)
{
    if (root.isTextNode())
        return escaped (root.text(), false);

    start (root, 0);
    while (! open.empty()) {
        if (open.back().nextChild != nullptr) {
            child (open.back());
        } else {
            end (open.back());
            open.pop_back();
        }
    }
}

/** Text goes on where it stands, since a line end before it would be read back as a part of it. */
void XmlWriter::child (Open& parent)
{
    const auto& element = *parent.nextChild;
    parent.nextChild = element.nextSibling();
    const bool wasAfterText = parent.isAfterText;
    parent.isAfterText = element.isTextNode();
    if (element.isTextNode())
        return escaped (element.text(), false);

    const auto indentation = parent.indentation + 2;
    if (! wasAfterText)
        newLine (indentation);
    start (element, indentation);
}

void XmlWriter::start (const XmlElement& element, std::size_t indentation)
{
    output << '<' << element.tagName();
    attributes (element, indentation + 1 + element.tagName().size());
    if (element.firstChild() != nullptr) {
        output << '>';
        open.push_back ({ &element, element.firstChild(), indentation, false });
    } else if (element.attributes) {
        output << "/>";
    } else {
        output << '>';
        newLine (indentation);
        output << "</" << element.tagName() << '>';
    }
}

void XmlWriter::attributes (const XmlElement& element, std::size_t column)
{
    auto lineStart = output.position();
    for (const auto* attribute = element.attributes.get(); attribute != nullptr; attribute = attribute->next.get()) {
        if (output.position() - lineStart > layout.lineWrapLength && ! layout.allOnOneLine) {
            newLine (column);
            lineStart = output.position();
        }
        output << ' ' << attribute->name << "=\"";
        escaped (attribute->value, true);
        output << '"';
    }
}

void XmlWriter::end (const Open& element)
{
    if (! element.isAfterText)
        newLine (element.indentation);
    output << "</" << element.element->tagName() << '>';
}

void XmlWriter::escaped (const String& text, bool inAttribute)
{
    const std::string_view bytes (text.str());
    for (std::size_t i = 0; i < bytes.size();) {
        auto safeEnd = i;
        while (safeEnd < bytes.size() && isSafe (bytes[safeEnd], inAttribute))
            ++safeEnd;
        output.write (bytes.data() + i, safeEnd - i);
        if (safeEnd < bytes.size()) {
            const char c = bytes[safeEnd++];
            if (const auto* const name = namedEscape (c))
                output << name;
            else
                output << "&#" << String (int{ static_cast<signed char> (c) }) << ';';
        }
        i = safeEnd;
    }
}

void XmlElement::writeTo (MemoryOutput& output, const Layout& layout) const
{
    const auto* const lineEndOrSpace = layout.allOnOneLine ? " " : lineEnd;
    XmlWriter writer (output, layout);
    if (layout.includeHeader)
        writer.header();
    if (! layout.dtd.empty())
        output << layout.dtd << lineEndOrSpace;
    writer.tree (*this);
    output << lineEnd;
}

bool XmlElement::writeTo (const File& file, const String& dtd, const String& encoding, std::size_t lineWrapLength) const
{
    Layout layout;
    layout.dtd = dtd;
    layout.encoding = encoding;
    layout.lineWrapLength = lineWrapLength;
    MemoryOutput document (2048);
    writeTo (document, layout);

    const TemporaryFile temporary (file);
    FileWriter writer (temporary.file());
    return writer.write (document) && writer.finish() && temporary.replaceTarget();
}

}
