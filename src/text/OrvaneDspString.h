#pragma once
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace qel
{

/** UTF-8 text, wrapping std::string. Any thread, each instance on one.
    Numbers are formatted and parsed in the C locale, whatever the process's. Case and white space are ASCII only.
    Positions and lengths are in bytes; a position of -1 means not found. */
class String
{
public:
    String() = default;
    /** Null becomes empty text. */
    String (const char* characters) : text (characters == nullptr ? "" : characters) {}
    String (std::string characters) : text (std::move (characters)) {}
    explicit String (std::string_view characters) : text (characters) {}
    /** The whole UTF-8 characters between two pointers, up to a null byte. A character truncated by `end` is
        dropped. */
    String (const char* begin, const char* end);

    explicit String (int value);
    explicit String (unsigned value);
    explicit String (long value) : String (static_cast<long long> (value)) {}
    explicit String (unsigned long value) : String (static_cast<unsigned long long> (value)) {}
    explicit String (long long value);
    explicit String (unsigned long long value);
    /** With 1 to 6 decimals and a magnitude below 1e20: that many decimals, halves rounded away from zero. Otherwise up
        to `decimals` significant digits (6 for 0), with an exponent where that is shorter. */
    String (double value, int decimals);
    explicit String (bool) = delete;
    explicit String (char) = delete;

    /** "true" for exactly 1, else "false". */
    [[nodiscard]] static String fromBool (int value);
    /** Formats one number by a printf format with one conversion ("%02d", "gain %.3f dB"). */
    [[nodiscard]] static String formatted (const char* format, int value);
    [[nodiscard]] static String formatted (const char* format, double value);
    /** Lower-case hexadecimal digits without leading zeros. */
    [[nodiscard]] static String hex (std::uint64_t value);
    /** 0 to 15, or -1 if not a hexadecimal digit. */
    [[nodiscard]] static int hexDigit (char digit) noexcept;
    /** 0 to 255 from two hexadecimal digits, or -1. */
    [[nodiscard]] static int hexByte (char high, char low) noexcept;
    /** "\n" */
    [[nodiscard]] static const String& newLine();
    [[nodiscard]] static const String& emptyText();

    [[nodiscard]] const char* c_str() const noexcept { return text.c_str(); }
    [[nodiscard]] const std::string& str() const noexcept { return text; }
    [[nodiscard]] std::size_t size() const noexcept { return text.size(); }
    [[nodiscard]] bool empty() const noexcept { return text.empty(); }
    [[nodiscard]] char operator[] (std::size_t index) const { return text[index]; }

    /** Parses the number at the start, after white space; 0 if there is none. Clamped to the range of int. */
    [[nodiscard]] int toInt() const noexcept;
    [[nodiscard]] double toDouble() const noexcept;

    [[nodiscard]] String trimmed() const;
    [[nodiscard]] String trimmedStart() const;
    [[nodiscard]] String trimmedEnd() const;
    [[nodiscard]] String toLowerCase() const;
    /** Adds double quotes, unless the text already begins and ends with double or single quotes. */
    [[nodiscard]] String quoted() const;
    [[nodiscard]] String substr (std::size_t start, std::size_t count = std::string::npos) const;

    [[nodiscard]] std::ptrdiff_t find (char wanted, bool ignoreCase = false) const;
    [[nodiscard]] std::ptrdiff_t find (const String& wanted, bool ignoreCase = false) const;
    [[nodiscard]] std::ptrdiff_t findLast (char wanted, bool ignoreCase = false) const;
    [[nodiscard]] std::ptrdiff_t findLast (const String& wanted, bool ignoreCase = false) const;
    [[nodiscard]] bool contains (char wanted) const { return find (wanted) >= 0; }
    [[nodiscard]] bool contains (const String& wanted) const { return find (wanted) >= 0; }
    [[nodiscard]] bool containsAnyOf (const String& bytes) const noexcept;
    /** True for an empty text. */
    [[nodiscard]] bool containsOnly (const String& bytes) const noexcept;
    [[nodiscard]] bool containsNonWhiteSpace() const noexcept;
    /** Both return false if either side is empty. */
    [[nodiscard]] bool startsWith (const String& start) const noexcept;
    [[nodiscard]] bool endsWith (const String& end) const noexcept;

    /** Remove n bytes, or all if there are fewer. */
    void removeFromStart (std::size_t n);
    void removeFromEnd (std::size_t n);
    void removeLastOccurrenceOf (const String& part);
    /** Repeats until the text no longer ends with this. */
    void removeAllAtEnd (const String& end);
    void replaceAll (const String& part, const String& by);
    void replaceAll (char byte, char by);

    String& operator+= (const String& other)
    {
        text += other.text;
        return *this;
    }
    String& operator+= (char byte)
    {
        text += byte;
        return *this;
    }
    friend String operator+ (const String& a, const String& b) { return { a.text + b.text }; }
    friend bool operator== (const String& a, const String& b) noexcept { return a.text == b.text; }
    friend bool operator!= (const String& a, const String& b) noexcept { return a.text != b.text; }
    friend bool operator<(const String& a, const String& b) noexcept { return a.text < b.text; }
    friend std::ostream& operator<< (std::ostream& stream, const String& text);

private:
    std::string text;
};

}
