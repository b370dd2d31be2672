#pragma once
#include "host/bench/Event.h"

#include <cstddef>
#include <cstdint>
#include <string>

/** Draws choices from the front of a fuzz input, a byte or a few each. Past its end all choices are zero. */
class FuzzBytes
{
public:
    FuzzBytes (const std::uint8_t* data, std::size_t size) : next (data), end (data + size) {}

    [[nodiscard]] bool isOver() const { return next == end; }
    std::uint8_t byte() { return isOver() ? std::uint8_t{ 0 } : *next++; }
    std::uint64_t bytes (int count);

    /** 0 to count - 1; count is at most 65536. */
    std::size_t choice (std::size_t count);

    template <typename Table>
    auto& oneOf (const Table& table)
    {
        return table[choice (std::size (table))];
    }

    /** Any number from raw bits, including NaN, infinite and out-of-range ones. */
    double number();

    /** Anything a message can contain; mostly numbers, and words of the class. */
    t_atom atom();
    bench::Atoms atoms (std::size_t most);

    /** A word of the class: a message, an attribute or a symbol; rarely arbitrary text. */
    std::string word();

private:
    std::string anyText();

    const std::uint8_t* next;
    const std::uint8_t* end;
};
