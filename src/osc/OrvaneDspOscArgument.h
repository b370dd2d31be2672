#pragma once
#include "memory/OrvaneDspHeapBlock.h"
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <variant>

namespace qel
{

/** One typed value of a message. Its tag is a letter:
    i, h  32-bit and 64-bit integer     f, d  32-bit and 64-bit float     s  text     b  blob
    T, F  true and false                N  nil                            I  impulse */
class OSCArgument
{
public:
    struct Impulse
    {};

    /** Nil. */
    OSCArgument() = default;
    explicit OSCArgument (Impulse impulse) : value (impulse) {}
    explicit OSCArgument (std::int32_t number) : value (number) {}
    explicit OSCArgument (std::int64_t number) : value (number) {}
    explicit OSCArgument (float number) : value (number) {}
    explicit OSCArgument (double number) : value (number) {}
    explicit OSCArgument (bool truth) : value (truth) {}
    explicit OSCArgument (const char* text) : value (String (text)) {}
    explicit OSCArgument (const String& text) : value (text) {}
    explicit OSCArgument (const HeapBlock& blob) : value (blob) {}

    [[nodiscard]] char tag() const noexcept;

    /** Whether the value is of a signature's letter:
        b  T F i h      d  d      f  f      i, l  i h      n  f i h d      s  s      u  i or h that is not negative
        Any other letter accepts nothing. */
    [[nodiscard]] bool is (char letter) const noexcept;

    /** The number, converted; 0 if it is none. */
    [[nodiscard]] float asFloat() const noexcept;
    /** T and F are what they say, an integer is true if it is exactly 1; anything else is false. */
    [[nodiscard]] bool asBool() const noexcept;
    /** The integer of i and h; 0 if it is none. */
    [[nodiscard]] std::int64_t asInteger() const noexcept;
    /** The text of s; else empty. */
    [[nodiscard]] String asText() const;
    /** The bytes of b; else empty. */
    [[nodiscard]] HeapBlock asBlob() const;

private:
    struct Nil
    {};

    std::variant<Nil, Impulse, std::int32_t, std::int64_t, float, double, bool, String, HeapBlock> value;
};

}
