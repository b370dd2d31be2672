#include "text/OrvaneDspXmlWriter.h"
#include "common/OrvaneDspTime.h"
#include "common/OrvaneDspVersion.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <utility>

namespace qel
{

const char* xmlEscape (char c) noexcept
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

namespace
{

constexpr const char* lineEnd = "\r\n";

bool isSafe (char c, bool inAttribute) noexcept
{
    const bool isLineBreak = c == '\n' || c == '\r';
    return (c >= ' ' && c <= '~' && xmlEscape (c) == nullptr) || (isLineBreak && ! inAttribute);
}

template <typename Number>
std::string_view shortest (std::array<char, 64>& buffer, Number value)
{
    const auto magnitude = std::abs (value);
    const bool isPlain = magnitude == 0 || (magnitude >= Number (1e-5) && magnitude < Number (1e7));
    const auto form = isPlain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto [end, fault] = std::to_chars (buffer.data(), buffer.data() + buffer.size(), value, form);
    return { buffer.data(), fault == std::errc() ? static_cast<std::size_t> (end - buffer.data()) : 0 };
}

}

/** A float needs only single-precision digits, unless parsing them as a double and then narrowing does not give it
    back: rounding twice can be off by one step. */
String xmlNumber (double value)
{
    std::array<char, 64> buffer{};
    if (std::abs (value) <= static_cast<double> (std::numeric_limits<float>::max())) {
        const auto single = static_cast<float> (value);
        const auto text = shortest (buffer, single);
        double readBack = 0;
        std::from_chars (text.data(), text.data() + text.size(), readBack);
        if (static_cast<double> (single) == value && static_cast<float> (readBack) == single)
            return String (text);
    }
    return String (shortest (buffer, value));
}

XmlWriter::XmlWriter (MemoryOutput& outputToUse, const XmlLayout& layoutToUse)
    : output (outputToUse), layout (layoutToUse)
{}

void XmlWriter::startDocument()
{
    if (layout.includeHeader)
        header();
    if (! layout.dtd.empty())
        output << layout.dtd << (layout.allOnOneLine ? " " : lineEnd);
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

void XmlWriter::endDocument() { output << lineEnd; }

void XmlWriter::newLine (std::size_t indentation)
{
    if (layout.allOnOneLine)
        return;
    output << lineEnd;
    output.writeRepeated (' ', indentation);
}

void XmlWriter::beginContent (Open& element)
{
    if (! std::exchange (element.hasContent, true))
        output << '>';
}

void XmlWriter::start (std::string_view tagName)
{
    Open element{ std::string (tagName) };
    if (! open.empty()) {
        auto& parent = open.back();
        beginContent (parent);
        element.indentation = parent.indentation + 2;
        if (! std::exchange (parent.isAfterText, false))
            newLine (element.indentation);
    }
    output << '<';
    put (tagName);
    lineLength = 0;
    open.push_back (std::move (element));
}

void XmlWriter::attribute (std::string_view name, std::string_view value)
{
    auto& element = open.back();
    element.hasAttributes = true;
    if (lineLength > layout.lineWrapLength && ! layout.allOnOneLine) {
        newLine (element.indentation + 1 + element.tagName.size());
        lineLength = 0;
    }
    const auto before = output.position();
    output << ' ';
    put (name);
    output << "=\"";
    escaped (value, true);
    output << '"';
    lineLength += output.position() - before;
}

/** Starts no new line: a line break before the text would be read back as part of it. */
void XmlWriter::text (std::string_view characters)
{
    if (! open.empty()) {
        beginContent (open.back());
        open.back().isAfterText = true;
    }
    escaped (characters, false);
}

void XmlWriter::end()
{
    const auto element = std::move (open.back());
    open.pop_back();
    if (! element.hasContent && element.hasAttributes) {
        output << "/>";
        return;
    }
    if (! element.hasContent)
        output << '>';
    if (! element.isAfterText)
        newLine (element.indentation);
    output << "</";
    put (element.tagName);
    output << '>';
}

void XmlWriter::escaped (std::string_view bytes, bool inAttribute)
{
    for (std::size_t i = 0; i < bytes.size();) {
        auto safeEnd = i;
        while (safeEnd < bytes.size() && isSafe (bytes[safeEnd], inAttribute))
            ++safeEnd;
        output.write (bytes.data() + i, safeEnd - i);
        if (safeEnd < bytes.size()) {
            const char c = bytes[safeEnd++];
            if (const auto* const name = xmlEscape (c))
                output << name;
            else
                output << "&#" << String (int{ static_cast<signed char> (c) }) << ';';
        }
        i = safeEnd;
    }
}

}
