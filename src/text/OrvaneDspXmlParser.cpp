#include "text/OrvaneDspXmlParser.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

namespace qel
{

namespace
{

/** In bytes: far larger than any real file, and the tree still fits in memory. */
constexpr std::uint64_t largestDocument = 256 << 20;

constexpr std::string_view whiteSpace = " \t\r\n";

struct NamedEscape
{
    std::string_view name;
    char character;
};

constexpr NamedEscape namedEscapes[] = {
    { "amp;", '&' }, { "quot;", '"' }, { "apos;", '\'' }, { "lt;", '<' }, { "gt;", '>' },
};

bool isNameByte (char c) noexcept
{
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    const bool isDigit = c >= '0' && c <= '9';
    const bool isUtf8 = (static_cast<unsigned char> (c) & 0x80U) != 0;
    return isLetter || isDigit || isUtf8 || c == '_' || c == '-' || c == ':' || c == '.';
}

void appendUtf8 (std::string& text, unsigned code)
{
    const auto byte = [&text] (unsigned value) { text += static_cast<char> (value); };
    const auto continued = [&byte] (unsigned bits) { byte (0x80U | (bits & 0x3fU)); };
    if (code < 0x800) {
        byte (0xc0U | (code >> 6U));
    } else if (code < 0x10000) {
        byte (0xe0U | (code >> 12U));
        continued (code >> 6U);
    } else {
        byte (0xf0U | (code >> 18U));
        continued (code >> 12U);
        continued (code >> 6U);
    }
    continued (code);
}

/** A number from -128 to 127 is a byte (our writer escapes those above 127 so), a larger one a code point. */
bool appendCharacter (std::string& text, int code)
{
    const bool isSurrogate = code >= 0xd800 && code <= 0xdfff;
    if (code < -128 || code > 0x10ffff || isSurrogate)
        return false;
    if (code < 128)
        text += static_cast<char> (code);
    else
        appendUtf8 (text, static_cast<unsigned> (code));
    return true;
}

/** Decodes an escape, whose "&" is already consumed; returns false if it is invalid. */
bool takeEscape (std::string_view& raw, std::string& decoded)
{
    for (const auto& [name, character] : namedEscapes)
        if (raw.substr (0, name.size()) == name) {
            decoded += character;
            raw.remove_prefix (name.size());
            return true;
        }

    if (raw.substr (0, 1) != "#")
        return false;
    const bool isHexadecimal = raw.substr (1, 1) == "x";
    raw.remove_prefix (isHexadecimal ? 2 : 1);
    int code = 0;
    const auto [end, fault] = std::from_chars (raw.data(), raw.data() + raw.size(), code, isHexadecimal ? 16 : 10);
    raw.remove_prefix (static_cast<std::size_t> (end - raw.data()));
    if (fault != std::errc() || raw.substr (0, 1) != ";")
        return false;
    raw.remove_prefix (1);
    return appendCharacter (decoded, code);
}

}

bool XmlParser::parse (const File& file, XmlVisitor& visitorToCall) noexcept
{
    if (file.size() > largestDocument)
        return fail ("too much input");
    const auto document = file.readAll();
    return parse (document.str(), visitorToCall);
}

bool XmlParser::parse (std::string_view document, XmlVisitor& visitorToCall) noexcept
{
    rest = document;
    visitor = &visitorToCall;
    error = String();
    open.clear();
    try {
        return readDocument();
    } catch (const std::exception&) {
        return fail ("out of memory");
    }
}

bool XmlParser::fail (const String& complaint)
{
    error = complaint;
    return false;
}

bool XmlParser::failAtCharacter (std::string_view tagName)
{
    if (rest.empty())
        return fail ("not enough input");
    return fail ("illegal character found in " + String (tagName) + ": '" + String (rest.substr (0, 1)) + "'");
}

void XmlParser::skipWhiteSpace() noexcept
{
    rest.remove_prefix (std::min (rest.find_first_not_of (whiteSpace), rest.size()));
}

std::string_view XmlParser::takeName() noexcept
{
    const auto end = std::find_if_not (rest.begin(), rest.end(), isNameByte);
    const auto name = rest.substr (0, static_cast<std::size_t> (end - rest.begin()));
    rest.remove_prefix (name.size());
    return name;
}

bool XmlParser::skipThrough (std::string_view opening, std::string_view closing, const char* complaint)
{
    const auto end = rest.find (closing, opening.size());
    if (end == std::string_view::npos)
        return fail (complaint);
    rest.remove_prefix (end + closing.size());
    return true;
}

bool XmlParser::readDocument()
{
    constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
    if (startsWith (byteOrderMark))
        rest.remove_prefix (byteOrderMark.size());

    if (! skipAside (true))
        return false;
    if (rest.empty())
        return fail ("not enough input");
    if (rest.front() != '<')
        return fail ("tag name missing");
    if (! readStartTag())
        return false;
    while (! open.empty())
        if (! readContent())
            return false;
    return skipAside (false) && (rest.empty() || failAtCharacter (rootName));
}

/** Skips what may precede or follow the root element. */
bool XmlParser::skipAside (bool doctypeToo)
{
    for (;;) {
        skipWhiteSpace();
        if (startsWith ("<?")) {
            if (! skipThrough ("<?", "?>", "malformed header"))
                return false;
        } else if (startsWith ("<!--")) {
            if (! skipThrough ("<!--", "-->", "unterminated comment"))
                return false;
        } else if (doctypeToo && startsWith ("<!DOCTYPE")) {
            if (! skipDoctype())
                return false;
        } else {
            return true;
        }
    }
}

bool XmlParser::skipDoctype()
{
    std::size_t depth = 0;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        if (rest[i] == '<')
            ++depth;
        else if (rest[i] == '>' && --depth == 0) {
            rest.remove_prefix (i + 1);
            return true;
        }
    }
    return fail ("malformed DTD");
}

/** Parses one piece of the innermost open element's content, or its end tag. */
bool XmlParser::readContent()
{
    if (rest.empty())
        return fail ("not enough input");
    if (rest.front() != '<')
        return readText();
    if (startsWith ("</"))
        return readEndTag();
    if (startsWith ("<!--"))
        return skipThrough ("<!--", "-->", "unterminated comment");
    if (startsWith ("<![CDATA["))
        return readCharacterData();
    if (startsWith ("<?"))
        return skipThrough ("<?", "?>", "malformed header");
    return readStartTag();
}

bool XmlParser::readStartTag()
{
    rest.remove_prefix (1);
    const auto tagName = takeName();
    if (tagName.empty())
        return fail ("tag name missing");

    attributes.clear();
    for (skipWhiteSpace(); ! rest.empty() && isNameByte (rest.front()); skipWhiteSpace())
        if (! readAttribute (tagName))
            return false;
    if (! hasDistinctNames())
        return false;

    const bool isClosed = startsWith ("/>");
    if (! isClosed && ! startsWith (">"))
        return failAtCharacter (tagName);
    rest.remove_prefix (isClosed ? 2 : 1);

    if (open.empty())
        rootName = tagName;
    visitor->startElement (tagName, attributes);
    if (isClosed)
        visitor->endElement();
    else
        open.push_back (tagName);
    return true;
}

bool XmlParser::readAttribute (std::string_view tagName)
{
    const auto name = takeName();
    skipWhiteSpace();
    if (! startsWith ("="))
        return fail ("expected '=' after attribute '" + String (name) + "'");
    rest.remove_prefix (1);
    skipWhiteSpace();
    if (! startsWith ("\"") && ! startsWith ("'"))
        return failAtCharacter (tagName);

    const auto end = rest.find (rest.front(), 1);
    if (end == std::string_view::npos)
        return fail ("unmatched quotes");
    attributes.push_back ({ name, {} });
    if (! decode (rest.substr (1, end - 1), attributes.back().value))
        return false;
    rest.remove_prefix (end + 1);
    return true;
}

bool XmlParser::hasDistinctNames()
{
    names.clear();
    for (const auto& attribute : attributes)
        names.push_back (attribute.name);
    std::sort (names.begin(), names.end());
    const auto twin = std::adjacent_find (names.begin(), names.end());
    return twin == names.end() || fail ("repeated attribute '" + String (*twin) + "'");
}

bool XmlParser::readEndTag()
{
    rest.remove_prefix (2);
    const auto tagName = open.back();
    if (takeName() != tagName)
        return fail (rest.empty() ? "not enough input" : "expected '</" + String (tagName) + ">'");
    skipWhiteSpace();
    if (! startsWith (">"))
        return failAtCharacter (tagName);
    rest.remove_prefix (1);
    open.pop_back();
    visitor->endElement();
    return true;
}

bool XmlParser::readText()
{
    const auto raw = rest.substr (0, rest.find ('<'));
    rest.remove_prefix (raw.size());
    if (raw.find_first_not_of (whiteSpace) == std::string_view::npos)
        return true;

    std::string text;
    if (! decode (raw, text))
        return false;
    visitor->text (text);
    return true;
}

bool XmlParser::readCharacterData()
{
    constexpr std::string_view opening = "<![CDATA[", closing = "]]>";
    const auto whole = rest;
    if (! skipThrough (opening, closing, "unterminated CDATA section"))
        return false;
    const auto size = whole.size() - rest.size() - opening.size() - closing.size();
    visitor->text (whole.substr (opening.size(), size));
    return true;
}

bool XmlParser::decode (std::string_view raw, std::string& decoded)
{
    while (! raw.empty()) {
        const auto plain = raw.substr (0, raw.find ('&'));
        decoded += plain;
        raw.remove_prefix (plain.size());
        if (raw.empty())
            break;
        raw.remove_prefix (1);
        if (! takeEscape (raw, decoded))
            return fail ("illegal escape sequence");
    }
    return true;
}

}
