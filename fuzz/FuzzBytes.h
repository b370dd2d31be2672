#pragma once
#include "host/bench/Event.h"

#include <cstddef>
#include <cstdint>
#include <string>

/** An input of a fuzz target, read from its front: what it chooses, a byte or a few each. Behind its end it chooses
    zeros. */
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

    /** Any number, bits and all: also those that are none, or infinite, or too large. */
    double number();

    /** Anything that a message may hold; mostly numbers, and words that the class knows. */
    t_atom atom();
    bench::Atoms atoms (std::size_t most);

    /** A word that the class knows, of its messages, its attributes or its symbols; rarely any text. */
    std::string word();

private:
    std::string anyText();

    const std::uint8_t* next;
    const std::uint8_t* end;
};
