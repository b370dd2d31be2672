#pragma once
#include "host/api/MaxApi.h"

#include <cstddef>
#include <string>

namespace orvanemax
{

/** A view of atoms owned elsewhere, with the tests and conversions that handlers share. Any thread. */
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
    /** Drops the first n; empty if there are fewer. */
    [[nodiscard]] Atoms from (std::size_t n) const noexcept;

    /** One letter per atom: l or i for a long, f a float, n either, s a symbol; any other letter fails. Extra atoms are
        ignored. A float that is infinite, NaN or beyond 32 bits fits no letter. */
    [[nodiscard]] bool fit (const char* letters) const noexcept;
    /** As fit, without extra atoms. */
    [[nodiscard]] bool fitExactly (const char* letters) const noexcept;
    /** Whether every atom is a number that fits in 32 bits. */
    [[nodiscard]] bool areNumbers() const noexcept;

    /** A long or a float as a number; otherwise 0. */
    [[nodiscard]] float number (std::size_t index) const noexcept;
    /** A long, or a float truncated; otherwise 0. */
    [[nodiscard]] t_atom_long integer (std::size_t index) const noexcept;
    /** The symbol, or the empty symbol for other types. */
    [[nodiscard]] t_symbol* symbol (std::size_t index) const noexcept;

    /** Each atom followed by one space: longs in decimal, floats without trailing zeros ("1.5 ", "2. "), symbols by
        name; other types are skipped. */
    [[nodiscard]] std::string text() const;

private:
    std::size_t length = 0;
    const t_atom* items = nullptr;
};

/** Whether attributes can hold it: a long, a float or a symbol. */
[[nodiscard]] bool isKnownType (const t_atom& atom) noexcept;

/** Whether it is a long or a finite 32-bit float. */
[[nodiscard]] bool isNumber (const t_atom& atom) noexcept;

/** Whether it is a float that is infinite, NaN or beyond 32 bits. */
[[nodiscard]] bool isBadFloat (const t_atom& atom) noexcept;

/** A float with six decimals, as printf's %f, always with a point whatever the locale. */
[[nodiscard]] std::string fixedText (double value);

/** Logs malformed input as an error of the object: "TEXT ATOMS". */
void invalidMessage (void* object, const char* text, Atoms atoms);

/** Logs an error as a single text, which may hold any characters. */
void tellError (void* object, const std::string& text);
void tellWarning (void* object, const std::string& text);
void tellPost (void* object, const std::string& text);
void tellBug (void* object, const std::string& text);

}
