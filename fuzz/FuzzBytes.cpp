#include "FuzzBytes.h"

#include "ControlFuzz.h"

#include <cstring>
#include <limits>

namespace
{

constexpr auto infinity = std::numeric_limits<double>::infinity();
constexpr auto noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double oddNumbers[] = { 0,     -0.0, 1,   -1,    0.5,   1e-40, 1e-300,   1e10,         3.4e38,   -3.4e38,
                                  1e300, 250,  251, 32767, 32768, 65536, infinity, -infinity,    noNumber, 360,
                                  -180,  90,   64,  65,    1e-7,  1e5,   16777217, 2147483648.0, 1e19,     20000 };

t_atom floatAtom (double value)
{
    t_atom atom{};
    atom_setfloat (&atom, value);
    return atom;
}

t_atom longAtom (std::int64_t value)
{
    t_atom atom{};
    atom_setlong (&atom, static_cast<t_atom_long> (value));
    return atom;
}

t_atom symbolAtom (const std::string& text)
{
    t_atom atom{};
    atom_setsym (&atom, gensym (text.c_str()));
    return atom;
}

}

std::uint64_t FuzzBytes::bytes (int count)
{
    std::uint64_t value = 0;
    for (int i = 0; i < count; ++i)
        value = value << 8 | byte();
    return value;
}

std::size_t FuzzBytes::choice (std::size_t count)
{
    return static_cast<std::size_t> (count > 256 ? bytes (2) : bytes (1)) % count;
}

double FuzzBytes::number()
{
    switch (choice (4)) {
    case 0:
        return oneOf (oddNumbers);
    case 1: {
        const auto bits = bytes (8);
        double value = 0;
        std::memcpy (&value, &bits, sizeof value);
        return value;
    }
    default:
        return 0.25 * (static_cast<double> (bytes (2)) - 32768) / (1 + static_cast<double> (byte()));
    }
}

t_atom FuzzBytes::atom()
{
    switch (choice (16)) {
    case 0:
        return longAtom (static_cast<std::int64_t> (bytes (8)));
    case 1:
        return t_atom{}; // without a type
    case 2:
    case 3:
    case 4:
    case 5:
        return symbolAtom (word());
    case 6:
    case 7:
    case 8:
    case 9:
        return longAtom (static_cast<std::int64_t> (byte()) - 8);
    default:
        return floatAtom (number());
    }
}

bench::Atoms FuzzBytes::atoms (std::size_t most)
{
    bench::Atoms all (choice (most + 1));
    for (auto& one : all)
        one = atom();
    return all;
}

std::string FuzzBytes::word()
{
    const auto& words = ControlFuzz::words();
    const auto chosen = static_cast<std::size_t> (bytes (2));
    return chosen % 32 == 31 ? anyText() : words[(chosen / 32 * 31 + chosen % 32) % words.size()];
}

/** Never a path: files stay in the run's folder. */
std::string FuzzBytes::anyText()
{
    std::string text;
    for (auto length = choice (20); length > 0; --length)
        if (const auto c = static_cast<char> (byte()); c != '/' && c != '\0')
            text += c;
    return text;
}
