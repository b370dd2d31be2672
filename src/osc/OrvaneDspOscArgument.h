#pragma once
#include "memory/OrvaneDspHeapBlock.h"
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <variant>

namespace qel
{

/** One typed value of a message. The type tags:
    i, h  32-bit and 64-bit integer     f, d  32-bit and 64-bit float     s  string     b  blob
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

    /** Whether a signature letter accepts the value:
        b  T F i h      d  d      f  f      i, l  i h      n  f i h d      s  s      u  non-negative i or h
        Any other letter accepts nothing. */
    [[nodiscard]] bool is (char letter) const noexcept;

    /** The number, converted; 0 for other types. */
    [[nodiscard]] float asFloat() const noexcept;
    /** The value of T and F; an integer is true if it is exactly 1; anything else is false. */
    [[nodiscard]] bool asBool() const noexcept;
    /** The value of i and h; 0 for other types. */
    [[nodiscard]] std::int64_t asInteger() const noexcept;
    /** The text of s; empty for other types. */
    [[nodiscard]] String asText() const;
    /** The bytes of b; empty for other types. */
    [[nodiscard]] HeapBlock asBlob() const;

private:
    struct Nil
    {};

    std::variant<Nil, Impulse, std::int32_t, std::int64_t, float, double, bool, String, HeapBlock> value;
};

}
