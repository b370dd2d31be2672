#include "text/OrvaneDspString.h"

#include <algorithm>
#include <ostream>

namespace qel
{

namespace
{

constexpr std::string_view whiteSpace = " \t\n\v\f\r";

std::ptrdiff_t position (std::size_t found) noexcept
{
    return found == std::string::npos ? -1 : static_cast<std::ptrdiff_t> (found);
}

char lowerCase (char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char> (c - 'A' + 'a') : c; }

/** Length of the UTF-8 character that starts with this byte; 1 for an invalid lead byte. */
std::ptrdiff_t characterLength (char lead) noexcept
{
    const auto byte = static_cast<unsigned char> (lead);
    return byte >= 0xf0 && byte < 0xf8 ? 4 : byte >= 0xe0 && byte < 0xf0 ? 3 : byte >= 0xc0 && byte < 0xe0 ? 2 : 1;
}

bool isContinuation (char c) noexcept { return (static_cast<unsigned char> (c) & 0xc0) == 0x80; }

/** End of the character at p, or null if it is truncated. An invalid character ends where it breaks. */
const char* nextCharacter (const char* p, const char* end) noexcept
{
    const auto length = characterLength (*p);
    for (std::ptrdiff_t i = 1; i < length; ++i) {
        if (p + i == end)
            return nullptr;
        if (! isContinuation (p[i]))
            return p + i;
    }
    return p + length;
}

std::string_view wholeCharacters (const char* begin, const char* end) noexcept
{
    const char* p = begin;
    while (p != nullptr && p < end && *p != 0) {
        const char* const next = nextCharacter (p, end);
        if (next == nullptr)
            break;
        p = next;
    }
    return { begin, static_cast<std::size_t> (p - begin) };
}

}

String::String (const char* begin, const char* end) : text (wholeCharacters (begin, end)) {}

const String& String::newLine()
{
    static const String shared ("\n");
    return shared;
}

const String& String::emptyText()
{
    static const String shared;
    return shared;
}

String String::trimmedStart() const
{
    const auto first = text.find_first_not_of (whiteSpace);
    return first == std::string::npos ? String() : substr (first);
}

String String::trimmedEnd() const { return substr (0, text.find_last_not_of (whiteSpace) + 1); }

String String::trimmed() const { return trimmedStart().trimmedEnd(); }

String String::toLowerCase() const
{
    String lower = *this;
    std::transform (lower.text.begin(), lower.text.end(), lower.text.begin(), lowerCase);
    return lower;
}

String String::quoted() const
{
    const auto isBetween = [this] (char mark) { return ! empty() && text.front() == mark && text.back() == mark; };
    return isBetween ('"') || isBetween ('\'') ? *this : "\"" + *this + "\"";
}

String String::substr (std::size_t start, std::size_t count) const
{
    return start >= size() ? String() : String (text.substr (start, count));
}

std::ptrdiff_t String::find (char wanted, bool ignoreCase) const
{
    return ignoreCase ? toLowerCase().find (lowerCase (wanted)) : position (text.find (wanted));
}

std::ptrdiff_t String::find (const String& wanted, bool ignoreCase) const
{
    return ignoreCase ? toLowerCase().find (wanted.toLowerCase()) : position (text.find (wanted.text));
}

std::ptrdiff_t String::findLast (char wanted, bool ignoreCase) const
{
    return ignoreCase ? toLowerCase().findLast (lowerCase (wanted)) : position (text.rfind (wanted));
}

std::ptrdiff_t String::findLast (const String& wanted, bool ignoreCase) const
{
    return ignoreCase ? toLowerCase().findLast (wanted.toLowerCase()) : position (text.rfind (wanted.text));
}

bool String::containsAnyOf (const String& bytes) const noexcept
{
    return text.find_first_of (bytes.text) != std::string::npos;
}

bool String::containsOnly (const String& bytes) const noexcept
{
    return text.find_first_not_of (bytes.text) == std::string::npos;
}

bool String::containsNonWhiteSpace() const noexcept { return text.find_first_not_of (whiteSpace) != std::string::npos; }

bool String::startsWith (const String& start) const noexcept
{
    return ! empty() && ! start.empty() && text.compare (0, start.size(), start.text) == 0;
}

bool String::endsWith (const String& end) const noexcept
{
    return ! empty() && ! end.empty() && size() >= end.size() &&
           text.compare (size() - end.size(), end.size(), end.text) == 0;
}

void String::removeFromStart (std::size_t n) { text.erase (0, n); }

void String::removeFromEnd (std::size_t n) { text.resize (size() - std::min (n, size())); }

void String::removeLastOccurrenceOf (const String& part)
{
    const auto last = text.rfind (part.text);
    if (last != std::string::npos)
        text.erase (last, part.size());
}

void String::removeAllAtEnd (const String& end)
{
    while (endsWith (end))
        removeFromEnd (end.size());
}

void String::replaceAll (const String& part, const String& by)
{
    if (part.empty())
        return;
    std::string replaced;
    std::size_t start = 0;
    for (auto found = text.find (part.text); found != std::string::npos; found = text.find (part.text, start)) {
        replaced.append (text, start, found - start).append (by.text);
        start = found + part.size();
    }
    text = replaced.append (text, start);
}

void String::replaceAll (char byte, char by) { std::replace (text.begin(), text.end(), byte, by); }

std::ostream& operator<< (std::ostream& stream, const String& text) { return stream << text.text; }

}
