#include "max/Atoms.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace orvanemax
{
namespace
{

bool fits (const t_atom& atom, char letter) noexcept
{
    switch (letter) {
    case 'l':
    case 'i':
        return atom_gettype (&atom) == A_LONG;
    case 'f':
        return atom_gettype (&atom) == A_FLOAT && isNumber (atom);
    case 'n':
        return isNumber (atom);
    case 's':
        return atom_gettype (&atom) == A_SYM;
    default:
        return false;
    }
}

std::string withoutTrailingZeros (std::string text)
{
    if (text.find ('.') != std::string::npos)
        text.erase (text.find_last_not_of ('0') + 1);
    return text;
}

}

Atoms Atoms::from (std::size_t n) const noexcept
{
    Atoms rest;
    if (n < length) {
        rest.length = length - n;
        rest.items = items + n;
    }
    return rest;
}

bool Atoms::fit (const char* letters) const noexcept
{
    std::size_t index = 0;
    for (; letters[index] != '\0'; ++index)
        if (index >= length || ! fits (items[index], letters[index]))
            return false;
    return true;
}

bool Atoms::fitExactly (const char* letters) const noexcept { return length == std::strlen (letters) && fit (letters); }

bool Atoms::areNumbers() const noexcept
{
    for (const auto& atom : *this)
        if (! isNumber (atom))
            return false;
    return true;
}

float Atoms::number (std::size_t index) const noexcept
{
    if (index >= length)
        return 0;
    switch (atom_gettype (&items[index])) {
    case A_LONG:
        return static_cast<float> (atom_getlong (&items[index]));
    case A_FLOAT:
        return static_cast<float> (atom_getfloat (&items[index]));
    default:
        return 0;
    }
}

t_atom_long Atoms::integer (std::size_t index) const noexcept
{
    constexpr double limit = 9.0e18; // still within a 64-bit integer
    if (index >= length)
        return 0;
    switch (atom_gettype (&items[index])) {
    case A_LONG:
        return atom_getlong (&items[index]);
    case A_FLOAT: {
        const auto value = atom_getfloat (&items[index]);
        return std::abs (value) < limit ? static_cast<t_atom_long> (value) : 0;
    }
    default:
        return 0;
    }
}

t_symbol* Atoms::symbol (std::size_t index) const noexcept
{
    return index < length ? atom_getsym (&items[index]) : gensym ("");
}

std::string Atoms::text() const
{
    std::string out;
    for (const auto& atom : *this) {
        switch (atom_gettype (&atom)) {
        case A_LONG:
            out += std::to_string (atom_getlong (&atom)) + " ";
            break;
        case A_FLOAT:
            out += withoutTrailingZeros (fixedText (atom_getfloat (&atom))) + " ";
            break;
        case A_SYM:
            out += std::string (atom_getsym (&atom)->s_name) + " ";
            break;
        default:
            break;
        }
    }
    return out;
}

bool isKnownType (const t_atom& atom) noexcept
{
    const auto type = atom_gettype (&atom);
    return type == A_LONG || type == A_FLOAT || type == A_SYM;
}

bool isNumber (const t_atom& atom) noexcept
{
    const auto type = atom_gettype (&atom);
    return type == A_LONG || (type == A_FLOAT && std::isfinite (static_cast<float> (atom_getfloat (&atom))));
}

bool isBadFloat (const t_atom& atom) noexcept { return atom_gettype (&atom) == A_FLOAT && ! isNumber (atom); }

std::string fixedText (double value)
{
    std::array<char, 400> digits{}; // the largest double has 309 digits before the point
    const auto end = std::to_chars (digits.begin(), digits.end(), value, std::chars_format::fixed, 6);
    return { digits.begin(), end.ptr };
}

void invalidMessage (void* object, const char* text, Atoms atoms) { tellError (object, text + (" " + atoms.text())); }

void tellError (void* object, const std::string& text)
{
    object_error (static_cast<t_object*> (object), "%s", text.c_str());
}

void tellWarning (void* object, const std::string& text)
{
    object_warn (static_cast<t_object*> (object), "%s", text.c_str());
}

void tellPost (void* object, const std::string& text)
{
    object_post (static_cast<t_object*> (object), "%s", text.c_str());
}

void tellBug (void* object, const std::string& text)
{
    object_bug (static_cast<t_object*> (object), "%s", text.c_str());
}

}
