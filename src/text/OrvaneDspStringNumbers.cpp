#include "text/OrvaneDspString.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>

/** Converts numbers to text and back, independent of the process's locale except to undo printf's use of it. */
namespace qel
{

namespace
{

template <typename Integer>
std::string decimal (Integer value)
{
    std::array<char, 24> digits{};
    return { digits.data(), std::to_chars (digits.data(), digits.data() + digits.size(), value).ptr };
}

/** The integer digits of a non-negative value below 1e27. */
std::string wholeDigits (double value)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars (digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 0);
    return { digits.data(), end.ptr };
}

std::string fixedDecimals (double value, int decimals)
{
    const auto places = static_cast<std::size_t> (decimals);
    std::string digits = wholeDigits (std::floor (std::abs (value) * std::pow (10.0, decimals) + 0.5));
    if (digits.size() <= places)
        digits.insert (0, places + 1 - digits.size(), '0');
    digits.insert (digits.size() - places, 1, '.');
    return value < 0 ? "-" + digits : digits;
}

std::string significantDigits (double value, int precision)
{
    constexpr int standardPrecision = 6, fullPrecision = 17; // a double has no more than 17 significant digits
    const int digits = precision > 0 ? std::min (precision, fullPrecision) : standardPrecision;
    std::array<char, 40> text{};
    const auto end = std::to_chars (text.data(), text.data() + text.size(), value, std::chars_format::general, digits);
    return { text.data(), end.ptr };
}

/** A printf format split at its one conversion: the text before, "%" with flags and widths, its letter, the rest. */
struct Format
{
    std::string before, conversion, after;
};

/** Copies up to the next conversion, unescaping "%%"; returns where it stopped. */
const char* copyLiteral (const char* p, std::string& literal)
{
    while (*p != 0 && (*p != '%' || p[1] == '%')) {
        p += *p == '%' ? 1 : 0;
        literal += *p++;
    }
    return p;
}

/** Drops length modifiers, because the number's type is known. */
Format parseFormat (const char* p)
{
    Format format;
    p = copyLiteral (p, format.before);
    if (*p == '%') {
        format.conversion = *p++;
        for (; *p != 0 && std::string_view ("-+ #0123456789.hlLjzt").find (*p) != std::string_view::npos; ++p)
            if (std::string_view ("hlLjzt").find (*p) == std::string_view::npos)
                format.conversion += *p;
        if (*p != 0)
            format.conversion += *p++;
    }
    copyLiteral (p, format.after);
    return format;
}

template <typename Number>
std::string print (const std::string& conversion, Number number)
{
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int length = std::snprintf (nullptr, 0, conversion.c_str(), number);
    std::string text (static_cast<std::size_t> (std::max (length, 0)) + 1, '\0');
    std::snprintf (text.data(), text.size(), conversion.c_str(), number);
#pragma GCC diagnostic pop
    text.pop_back();
    return text;
}

void usePoint (std::string& number)
{
    const std::string point = std::localeconv()->decimal_point;
    const auto place = number.find (point);
    if (! point.empty() && place != std::string::npos)
        number.replace (place, point.size(), ".");
}

/** A conversion for another kind of number would read an argument that is not there: it prints nothing. */
template <typename Number>
String printFormatted (const char* text, Number number, std::string_view lettersThatFit)
{
    const Format format = parseFormat (text);
    std::string printed;
    if (! format.conversion.empty() && lettersThatFit.find (format.conversion.back()) != std::string_view::npos)
        printed = print (format.conversion, number);
    usePoint (printed);
    return { format.before + printed + format.after };
}

/** Start of the number in a text, for parsers that accept neither white space nor "+". */
const char* startOfNumber (const std::string& text) noexcept
{
    const char* p = text.c_str();
    while (*p == ' ' || (*p >= '\t' && *p <= '\r'))
        ++p;
    return *p == '+' && p[1] != '-' ? p + 1 : p;
}

/** The approximate decimal exponent of a non-zero number. */
long long powerOfTen (std::string_view digits) noexcept
{
    constexpr long long beyondAllDigits = 1'000'000'000'000;
    const auto mantissa = digits.substr (0, digits.find_first_of ("eE"));
    const auto point = std::min (mantissa.find ('.'), mantissa.size());
    const auto firstDigit = mantissa.find_first_of ("123456789");

    long long exponent = 0;
    if (mantissa.size() < digits.size()) {
        const auto text = digits.substr (mantissa.size() + (digits[mantissa.size() + 1] == '+' ? 2 : 1));
        exponent = text.front() == '-' ? -beyondAllDigits : beyondAllDigits; // kept if the exponent exceeds 64 bits
        std::from_chars (text.data(), text.data() + text.size(), exponent);
    }
    return std::clamp (exponent, -beyondAllDigits, beyondAllDigits) + static_cast<long long> (point) -
           static_cast<long long> (firstDigit);
}

/** The limit, 0 or infinity, for a number that does not fit into a double. */
double limitOf (std::string_view digits) noexcept
{
    const double magnitude = powerOfTen (digits) < 0 ? 0.0 : std::numeric_limits<double>::infinity();
    return digits.front() == '-' ? -magnitude : magnitude;
}

}

String::String (int value) : text (decimal (value)) {}
String::String (unsigned value) : text (decimal (value)) {}
String::String (long long value) : text (decimal (value)) {}
String::String (unsigned long long value) : text (decimal (value)) {}

String::String (double value, int decimals)
    : text (decimals >= 1 && decimals <= 6 && std::abs (value) < 1e20 ? fixedDecimals (value, decimals)
                                                                      : significantDigits (value, decimals))
{}

String String::fromBool (int value) { return value == 1 ? "true" : "false"; }

String String::formatted (const char* format, int value) { return printFormatted (format, value, "dioxXuc"); }

String String::formatted (const char* format, double value) { return printFormatted (format, value, "fFeEgGaA"); }

String String::hex (std::uint64_t value)
{
    std::array<char, 16> digits{};
    return { std::string (digits.data(), std::to_chars (digits.data(), digits.data() + digits.size(), value, 16).ptr) };
}

int String::hexDigit (char digit) noexcept
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

int String::hexByte (char high, char low) noexcept
{
    const int upper = hexDigit (high), lower = hexDigit (low);
    return upper < 0 || lower < 0 ? -1 : upper * 16 + lower;
}

int String::toInt() const noexcept
{
    const char* const start = startOfNumber (text);
    int value = 0;
    if (std::from_chars (start, text.c_str() + text.size(), value).ec == std::errc::result_out_of_range)
        return *start == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

double String::toDouble() const noexcept
{
    const char* const start = startOfNumber (text);
    double value = 0;
    const auto read = std::from_chars (start, text.c_str() + text.size(), value);
    if (read.ec == std::errc::result_out_of_range)
        return limitOf ({ start, static_cast<std::size_t> (read.ptr - start) });
    return value;
}

}
