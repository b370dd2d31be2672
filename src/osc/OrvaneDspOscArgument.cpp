#include "osc/OrvaneDspOscArgument.h"

#include <cstring>
#include <type_traits>

namespace qel
{

namespace
{

struct SignatureLetter
{
    char letter;
    const char* tags;
    bool notNegative;
};

constexpr SignatureLetter signatureLetters[] = {
    { 'b', "TFih", false }, { 'd', "d", false },    { 'f', "f", false }, { 'i', "ih", false },
    { 'l', "ih", false },   { 'n', "fihd", false }, { 's', "s", false }, { 'u', "ih", true },
};

}

char OSCArgument::tag() const noexcept
{
    constexpr char letters[] = "NIihfd?sb"; // indexed by the variant's alternatives; bool has two letters
    static_assert (sizeof (letters) == std::variant_size_v<decltype (value)> + 1);
    if (const auto* truth = std::get_if<bool> (&value))
        return *truth ? 'T' : 'F';
    return letters[value.index()];
}

bool OSCArgument::is (char letter) const noexcept
{
    for (const auto& row : signatureLetters)
        if (row.letter == letter)
            return std::strchr (row.tags, tag()) != nullptr && (! row.notNegative || asInteger() >= 0);
    return false;
}

float OSCArgument::asFloat() const noexcept
{
    return std::visit (
        [] (const auto& held) {
            using Held = std::decay_t<decltype (held)>;
            if constexpr (std::is_arithmetic_v<Held> && ! std::is_same_v<Held, bool>)
                return static_cast<float> (held);
            else
                return 0.0f;
        },
        value);
}

bool OSCArgument::asBool() const noexcept
{
    if (const auto* truth = std::get_if<bool> (&value))
        return *truth;
    return asInteger() == 1;
}

std::int64_t OSCArgument::asInteger() const noexcept
{
    if (const auto* number = std::get_if<std::int32_t> (&value))
        return *number;
    const auto* number = std::get_if<std::int64_t> (&value);
    return number != nullptr ? *number : 0;
}

String OSCArgument::asText() const
{
    const auto* text = std::get_if<String> (&value);
    return text != nullptr ? *text : String();
}

HeapBlock OSCArgument::asBlob() const
{
    const auto* blob = std::get_if<HeapBlock> (&value);
    return blob != nullptr ? *blob : HeapBlock();
}

}
