#pragma once
#include <cstdint>
#include <string>

namespace qel
{

/** Text, UTF-8 by convention: a value around a standard narrow string. Any thread, each text its own. */
class String
{
public:
    String() = default;
    String (const char* characters) : text (characters == nullptr ? "" : characters) {}
    String (std::string characters) : text (std::move (characters)) {}

    [[nodiscard]] const char* c_str() const noexcept { return text.c_str(); }
    [[nodiscard]] const std::string& str() const noexcept { return text; }
    [[nodiscard]] std::size_t size() const noexcept { return text.size(); }
    [[nodiscard]] bool empty() const noexcept { return text.empty(); }
    [[nodiscard]] char operator[] (std::size_t index) const { return text[index]; }

    String& operator+= (const String& other)
    {
        text += other.text;
        return *this;
    }
    friend String operator+ (const String& a, const String& b) { return { a.text + b.text }; }
    friend bool operator== (const String& a, const String& b) noexcept { return a.text == b.text; }
    friend bool operator!= (const String& a, const String& b) noexcept { return a.text != b.text; }
    friend bool operator<(const String& a, const String& b) noexcept { return a.text < b.text; }

private:
    std::string text;
};

}
