#pragma once
#include <array>
#include <cmath>
#include <cstdint>

/** The number of a reverb parameter, 0 to 19: what travels with every change. */
using HalcyraReverbParameter = int;
/** The number of a filter set: 0 direct, 1 room, 2 early, 3 cluster. */
using HalcyraFilter = int;

/** The reverberator's parameters, in the order of their numbers. A fresh record holds the defaults. */
struct HalcyraTimeStructure
{
    float gain = 0;                                   // dB
    float tr0 = 1.995f, trl = 1, trm = 1, trh = 0.5f; // s, and ratios to it
    float fl = 250, fh = 8000;                        // Hz
    float earlyStart = 22.22f, earlyEnd = 39.71f;     // ms
    float earlyDistr = 0.5f, earlyShape = 0.5f;
    float earlyWidth = 30;                             // degrees
    float clusterStart = 42.47f, clusterEnd = 105.64f; // ms
    float clusterDistr = 0.5f;
    float reverbStart = 95.37f; // ms
    float modalDensity = 0.86f;
    std::uint8_t air = 1, infinite = 0; // switches
    float airFrequency = 10000;         // Hz
};

/** One three-band filter: gains in dB, crossover frequencies in Hz. A fresh record holds the defaults. */
struct HLShelfParameters
{
    float G0 = 0, Gl = 0, Gm = 0, Gh = 0;
    float fl = 250, fh = 4000;

    friend bool operator== (const HLShelfParameters& a, const HLShelfParameters& b) noexcept
    {
        return a.G0 == b.G0 && a.Gl == b.Gl && a.Gm == b.Gm && a.Gh == b.Gh && a.fl == b.fl && a.fh == b.fh;
    }
    friend bool operator!= (const HLShelfParameters& a, const HLShelfParameters& b) noexcept { return ! (a == b); }
};

namespace halcyra
{

/** The parameters by name. */
namespace parameter
{
enum : HalcyraReverbParameter
{
    gain,
    tr0,
    trl,
    trm,
    trh,
    fl,
    fh,
    earlyStart,
    earlyEnd,
    earlyDistr,
    earlyShape,
    earlyWidth,
    clusterStart,
    clusterEnd,
    clusterDistr,
    reverbStart,
    modalDensity,
    air,
    infinite,
    airFrequency,
    count
};
}

/** One parameter: where it is held, how it is called, and how its control behaves.
    To add one: give the record a field, the list of names a name, this table a row, the page's layout a row, and the
    page's setting order a place. */
struct ParameterRow
{
    HalcyraReverbParameter number;
    float HalcyraTimeStructure::*value;       // null for a switch
    std::uint8_t HalcyraTimeStructure::*flag; // null for a number
    const char* selector;                     // the message that carries it, and that message's first word
    const char* key;
    const char* name;       // of its slider or toggle
    const char* label;      // what stands beside it
    double lowest, highest; // the slider's range
    double admitted;        // the highest value that a message may set
    double step;            // of the slider
    double midPoint;        // the value in the middle of the slider; 0 for a linear one
    double doubleClick;     // where a double click sends the slider
    int decimals;           // of the text that shows the value
    const char* unit;       // the end of that text, its leading blank included

    [[nodiscard]] constexpr bool isSwitch() const noexcept { return flag != nullptr; }
};

// clang-format off
/** All reverb parameters, in the order of their numbers.
    The air frequency's double click goes by the default of the air switch, 1, so its slider falls to its low end.
    The slider of trh is narrower than what a message may set: it then stands at its end. */
inline constexpr std::array<ParameterRow, parameter::count> parameterTable { {
    { parameter::gain,         &HalcyraTimeStructure::gain,         nullptr, "reverb",  "gain",  "gain",  "Reverb Gain",   -30,  30,    30,    0.01, 0,     0,      2, " dB" },
    { parameter::tr0,          &HalcyraTimeStructure::tr0,          nullptr, "reverb",  "tr0",   "tr0",   "Global",        0.1,  30,    30,    0.01, 5,     1.995,  2, " s" },
    { parameter::trl,          &HalcyraTimeStructure::trl,          nullptr, "reverb",  "trl",   "trl",   "Low",           0.1,  10,    10,    0.01, 2,     1,      2, "" },
    { parameter::trm,          &HalcyraTimeStructure::trm,          nullptr, "reverb",  "trm",   "trm",   "Med",           0.1,  10,    10,    0.01, 2,     1,      2, "" },
    { parameter::trh,          &HalcyraTimeStructure::trh,          nullptr, "reverb",  "trh",   "trh",   "High",          0.1,  1,     10,    0.01, 0,     0.5,    2, "" },
    { parameter::fl,           &HalcyraTimeStructure::fl,           nullptr, "reverb",  "fl",    "fl",    "Low",           20,   20000, 20000, 1,    4000,  250,    1, " Hz" },
    { parameter::fh,           &HalcyraTimeStructure::fh,           nullptr, "reverb",  "fh",    "fh",    "High",          20,   20000, 20000, 1,    4000,  8000,   1, " Hz" },
    { parameter::earlyStart,   &HalcyraTimeStructure::earlyStart,   nullptr, "early",   "start", "rev",   "Early min",     1,    120,   120,   0.01, 0,     22.22,  2, " ms" },
    { parameter::earlyEnd,     &HalcyraTimeStructure::earlyEnd,     nullptr, "early",   "end",   "rev",   "Early max",     1,    120,   120,   0.01, 0,     39.71,  2, " ms" },
    { parameter::earlyDistr,   &HalcyraTimeStructure::earlyDistr,   nullptr, "early",   "distr", "rev",   "Early distr",   0.1,  0.9,   0.9,   0.01, 0,     0.5,    2, "" },
    { parameter::earlyShape,   &HalcyraTimeStructure::earlyShape,   nullptr, "early",   "shape", "rev",   "Early shape",   0,    1,     1,     0.01, 0,     0.5,    2, "" },
    { parameter::earlyWidth,   &HalcyraTimeStructure::earlyWidth,   nullptr, "early",   "width", "rev",   "Early width",   10,   180,   180,   0.1,  0,     30,     2, " deg" },
    { parameter::clusterStart, &HalcyraTimeStructure::clusterStart, nullptr, "cluster", "start", "rev",   "Cluster min",   1,    300,   300,   0.01, 0,     42.47,  2, " ms" },
    { parameter::clusterEnd,   &HalcyraTimeStructure::clusterEnd,   nullptr, "cluster", "end",   "rev",   "Cluster max",   1,    300,   300,   0.01, 0,     105.64, 2, " ms" },
    { parameter::clusterDistr, &HalcyraTimeStructure::clusterDistr, nullptr, "cluster", "distr", "rev",   "Cluster distr", 0.1,  0.9,   0.9,   0.01, 0,     0.5,    2, "" },
    { parameter::reverbStart,  &HalcyraTimeStructure::reverbStart,  nullptr, "reverb",  "start", "rev",   "Reverb start",  1,    500,   500,   0.01, 0,     95.37,  2, " ms" },
    { parameter::modalDensity, &HalcyraTimeStructure::modalDensity, nullptr, "reverb",  "modaldensity", "rev", "Modal density", 0.2, 4, 4,    0.01, 0,     0.86,   2, "" },
    { parameter::air,          nullptr, &HalcyraTimeStructure::air,          "reverb",  "air",   "air",   "Air Absorption", 0,   1,     1,     1,    0,     1,      0, "" },
    { parameter::infinite,     nullptr, &HalcyraTimeStructure::infinite,     "reverb",  "infinite", "infinite", "Infinite", 0,   1,     1,     1,    0,     0,      0, "" },
    { parameter::airFrequency, &HalcyraTimeStructure::airFrequency, nullptr, "reverb",  "airfreq", "airfreq", "Air frequency", 20, 20000, 20000, 1,  10000, 1,      1, " Hz" },
} };
// clang-format on

/** The row of a parameter number, null for any other number. */
[[nodiscard]] constexpr const ParameterRow* parameterRow (HalcyraReverbParameter number) noexcept
{
    return number >= 0 && number < parameter::count ? &parameterTable[static_cast<std::size_t> (number)] : nullptr;
}

/** A field of the record by its row; a switch counts as 0 or 1. */
[[nodiscard]] constexpr float valueOf (const HalcyraTimeStructure& record, const ParameterRow& row) noexcept
{
    return row.isSwitch() ? static_cast<float> (record.*row.flag) : record.*row.value;
}

/** The four filter sets, in the order of their numbers. */
inline constexpr std::array<const char*, 4> filterNames{ "direct", "room", "early", "cluster" };

/** One field of a filter: what a message may set, and how its slider behaves. */
struct ShelfRow
{
    float HLShelfParameters::*value;
    const char* name;      // the message's word, and the slider's name
    const char* label;     // what stands above the slider
    float lowest, highest; // what a filter admits
    double sliderLowest, sliderHighest, step;
    double midPoint; // the value in the middle of the slider; 0 for a linear one
    double doubleClick;
    bool isFrequency; // else a gain
};

/** All fields of a filter, in their order. The slider of G0 is narrower than the filter: it then stands at its end. */
inline constexpr std::array<ShelfRow, 6> shelfTable{ {
    { &HLShelfParameters::G0, "G0", "global", -200, 30, -60, 10, 0.05, 0, 0, false },
    { &HLShelfParameters::Gl, "Gl", "low", -30, 30, -30, 30, 0.05, 0, 0, false },
    { &HLShelfParameters::Gm, "Gm", "med", -30, 30, -30, 30, 0.05, 0, 0, false },
    { &HLShelfParameters::Gh, "Gh", "high", -30, 30, -30, 30, 0.05, 0, 0, false },
    { &HLShelfParameters::fl, "fl", "low", 20, 20000, 20, 20000, 1, 4000, 250, true },
    { &HLShelfParameters::fh, "fh", "high", 20, 20000, 20, 20000, 1, 4000, 4000, true },
} };

/** The filter with every field within its limits. */
[[nodiscard]] constexpr HLShelfParameters clipped (HLShelfParameters filter) noexcept
{
    for (const auto& row : shelfTable)
        filter.*row.value = filter.*row.value < row.lowest    ? row.lowest
                            : filter.*row.value > row.highest ? row.highest
                                                              : filter.*row.value;
    return filter;
}

/** No field is infinite or not a number. */
[[nodiscard]] inline bool isFinite (const HLShelfParameters& filter) noexcept
{
    for (const auto& row : shelfTable)
        if (! std::isfinite (filter.*row.value))
            return false;
    return true;
}

}
