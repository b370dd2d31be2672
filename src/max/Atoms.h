#pragma once
#include "host/api/MaxApi.h"

#include <cstddef>
#include <string>

namespace orvanemax
{

/** A list of atoms that somebody else owns, with the tests and readings that handlers share. Any thread. */
class Atoms
{
public:
    Atoms() = default;
    Atoms (t_clong count, const t_atom* first) noexcept
        : length (first != nullptr && count > 0 ? static_cast<std::size_t> (count) : 0), items (first)
    {}

    [[nodiscard]] std::size_t size() const noexcept { return length; }
    [[nodiscard]] bool empty() const noexcept { return length == 0; }
    [[nodiscard]] const t_atom& operator[] (std::size_t index) const noexcept { return items[index]; }
    [[nodiscard]] const t_atom* begin() const noexcept { return items; }
    [[nodiscard]] const t_atom* end() const noexcept { return items + length; }
    /** Without the first n, or empty if there are fewer. */
    [[nodiscard]] Atoms from (std::size_t n) const noexcept;

    /** A letter an atom: l or i a long, f a float, n either, s a symbol; any other letter fails. Atoms behind the
        letters are ignored. A float that is infinite, not a number, or beyond 32 bits fits no letter. */
    [[nodiscard]] bool fit (const char* letters) const noexcept;
    /** The same, with no atom left over. */
    [[nodiscard]] bool fitExactly (const char* letters) const noexcept;
    /** Every atom is a number that fits in 32 bits. */
    [[nodiscard]] bool areNumbers() const noexcept;

    /** A long or a float as a number, anything else as 0. */
    [[nodiscard]] float number (std::size_t index) const noexcept;
    /** A long, or a float truncated, anything else as 0. */
    [[nodiscard]] t_atom_long integer (std::size_t index) const noexcept;
    /** The empty symbol for anything else. */
    [[nodiscard]] t_symbol* symbol (std::size_t index) const noexcept;

    /** Each atom followed by one blank: longs in decimal, floats without trailing zeros ("1.5 ", "2. "), symbols by
        their names; atoms of other types are skipped. */
    [[nodiscard]] std::string text() const;

private:
    std::size_t length = 0;
    const t_atom* items = nullptr;
};

/** A long, a float or a symbol: what attributes hold. */
[[nodiscard]] bool isKnownType (const t_atom& atom) noexcept;

/** A long or a finite 32-bit float. */
[[nodiscard]] bool isNumber (const t_atom& atom) noexcept;

/** A float that is infinite, not a number, or beyond 32 bits. */
[[nodiscard]] bool isBadFloat (const t_atom& atom) noexcept;

/** A float in decimals, always with a point, whatever the locale: six decimals, as printf's %f has them. */
[[nodiscard]] std::string fixedText (double value);

/** "TEXT ATOMS" in the Max window, as an error of the object: how malformed input is told. */
void invalidMessage (void* object, const char* text, Atoms atoms);

/** One text in the Max window; it may hold any characters. */
void tellError (void* object, const std::string& text);
void tellWarning (void* object, const std::string& text);
void tellPost (void* object, const std::string& text);
void tellBug (void* object, const std::string& text);

}
