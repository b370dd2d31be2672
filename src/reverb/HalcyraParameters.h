#pragma once
#include <array>
#include <cmath>
#include <cstdint>

/** A reverb parameter's number, 0 to 19; identifies it in every change. */
using HalcyraReverbParameter = int;
/** A filter's number: 0 direct, 1 room, 2 early, 3 cluster. */
using HalcyraFilter = int;

/** The reverb parameters, in the order of their numbers. A new record holds the defaults of parameterTable. */
struct HalcyraTimeStructure
{
    HalcyraTimeStructure() noexcept;

    float gain;                 // dB
    float tr0, trl, trm, trh;   // s, and ratios to it
    float fl, fh;               // Hz
    float earlyStart, earlyEnd; // ms
    float earlyDistr, earlyShape;
    float earlyWidth;               // degrees
    float clusterStart, clusterEnd; // ms
    float clusterDistr;
    float reverbStart; // ms
    float modalDensity;
    std::uint8_t air, infinite; // switches
    float airFrequency;         // Hz
};

/** One three-band filter: gains in dB, crossover frequencies in Hz. A new record holds the defaults of shelfTable. */
struct HLShelfParameters
{
    HLShelfParameters() noexcept;
    constexpr HLShelfParameters (float global, float low, float mid, float high, float lowHz, float highHz) noexcept
        : G0 (global), Gl (low), Gm (mid), Gh (high), fl (lowHz), fh (highHz)
    {}

    float G0, Gl, Gm, Gh;
    float fl, fh;

    friend bool operator== (const HLShelfParameters& a, const HLShelfParameters& b) noexcept
    {
        return a.G0 == b.G0 && a.Gl == b.Gl && a.Gm == b.Gm && a.Gh == b.Gh && a.fl == b.fl && a.fh == b.fh;
    }
    friend bool operator!= (const HLShelfParameters& a, const HLShelfParameters& b) noexcept { return ! (a == b); }
};

namespace halcyra
{

/** The parameter numbers by name. */
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

/** Parses a decimal number such as "-1.995", rounded once, from the quotient of two integers. */
constexpr double decimal (const char* text) noexcept
{
    const bool isNegative = *text == '-';
    double digits = 0, scale = 1;
    bool behindPoint = false;
    for (const char* c = text + (isNegative ? 1 : 0); *c != '\0'; ++c) {
        if (*c == '.') {
            behindPoint = true;
            continue;
        }
        digits = 10 * digits + (*c - '0');
        scale *= behindPoint ? 10 : 1;
    }
    return (isNegative ? -digits : digits) / scale;
}

/** The values a slider takes: from one end to the other in steps. */
struct SliderRange
{
    double lowest, highest, step;

    /** Rounds to the nearest step, as a slider does. Single precision in and out. */
    [[nodiscard]] float stepped (float value) const noexcept
    {
        const double wish = static_cast<double> (value);
        const double nearest = lowest + step * std::floor ((wish - lowest) / step + 0.5);
        return static_cast<float> (nearest <= lowest ? lowest : nearest >= highest ? highest : nearest);
    }
};

/** One parameter: where it is stored, its names, and how its control behaves.
    To add one: a field in the record, a name in the list of names, and a row in this table. */
struct ParameterRow
{
    HalcyraReverbParameter number;
    float HalcyraTimeStructure::*value;       // null for a switch
    std::uint8_t HalcyraTimeStructure::*flag; // null for a number
    const char* selector;                     // the message that sends it, and that message's first word
    const char* key;
    const char* name;        // of its slider or toggle
    const char* label;       // shown beside it
    SliderRange range;       // the legal values, whoever sets it
    double midPoint;         // the value at the slider's middle; 0 for a linear slider
    const char* defaultText; // its default, as in the attribute's documentation
    int decimals;            // in the text that shows the value
    const char* unit;        // suffix of that text, with its leading blank
    const char* spoken;      // the control's name for screen readers

    [[nodiscard]] constexpr bool isSwitch() const noexcept { return flag != nullptr; }
    [[nodiscard]] constexpr double defaultValue() const noexcept { return decimal (defaultText); }
    [[nodiscard]] constexpr double doubleClick() const noexcept;
};

// clang-format off
/** All reverb parameters, in the order of their numbers. */
inline constexpr std::array<ParameterRow, parameter::count> parameterTable { {
    { parameter::gain,         &HalcyraTimeStructure::gain,         nullptr, "reverb",  "gain",  "gain",  "Reverb Gain",    { -30, 30, 0.01 },   0,     "0",      2, " dB", "Reverb gain" },
    { parameter::tr0,          &HalcyraTimeStructure::tr0,          nullptr, "reverb",  "tr0",   "tr0",   "Global",         { 0.1, 30, 0.01 },   5,     "1.995",  2, " s", "Decay time" },
    { parameter::trl,          &HalcyraTimeStructure::trl,          nullptr, "reverb",  "trl",   "trl",   "Low",            { 0.1, 10, 0.01 },   2,     "1",      2, "", "Decay time ratio, low" },
    { parameter::trm,          &HalcyraTimeStructure::trm,          nullptr, "reverb",  "trm",   "trm",   "Med",            { 0.1, 10, 0.01 },   2,     "1",      2, "", "Decay time ratio, middle" },
    { parameter::trh,          &HalcyraTimeStructure::trh,          nullptr, "reverb",  "trh",   "trh",   "High",           { 0.1, 1, 0.01 },    0,     "0.5",    2, "", "Decay time ratio, high" },
    { parameter::fl,           &HalcyraTimeStructure::fl,           nullptr, "reverb",  "fl",    "fl",    "Low",            { 20, 20000, 1 },    4000,  "250",    1, " Hz", "Decay crossover, low" },
    { parameter::fh,           &HalcyraTimeStructure::fh,           nullptr, "reverb",  "fh",    "fh",    "High",           { 20, 20000, 1 },    4000,  "8000",   1, " Hz", "Decay crossover, high" },
    { parameter::earlyStart,   &HalcyraTimeStructure::earlyStart,   nullptr, "early",   "start", "rev",   "Early min",      { 1, 120, 0.01 },    0,     "22.22",  2, " ms", "Early start" },
    { parameter::earlyEnd,     &HalcyraTimeStructure::earlyEnd,     nullptr, "early",   "end",   "rev",   "Early max",      { 1, 120, 0.01 },    0,     "39.71",  2, " ms", "Early end" },
    { parameter::earlyDistr,   &HalcyraTimeStructure::earlyDistr,   nullptr, "early",   "distr", "rev",   "Early distr",    { 0.1, 0.9, 0.01 },  0,     "0.5",    2, "", "Early distribution" },
    { parameter::earlyShape,   &HalcyraTimeStructure::earlyShape,   nullptr, "early",   "shape", "rev",   "Early shape",    { 0, 1, 0.01 },      0,     "0.5",    2, "", "Early shape" },
    { parameter::earlyWidth,   &HalcyraTimeStructure::earlyWidth,   nullptr, "early",   "width", "rev",   "Early width",    { 10, 180, 0.1 },    0,     "30",     2, " deg", "Early width" },
    { parameter::clusterStart, &HalcyraTimeStructure::clusterStart, nullptr, "cluster", "start", "rev",   "Cluster min",    { 1, 300, 0.01 },    0,     "42.47",  2, " ms", "Cluster start" },
    { parameter::clusterEnd,   &HalcyraTimeStructure::clusterEnd,   nullptr, "cluster", "end",   "rev",   "Cluster max",    { 1, 300, 0.01 },    0,     "105.64", 2, " ms", "Cluster end" },
    { parameter::clusterDistr, &HalcyraTimeStructure::clusterDistr, nullptr, "cluster", "distr", "rev",   "Cluster distr",  { 0.1, 0.9, 0.01 },  0,     "0.5",    2, "", "Cluster distribution" },
    { parameter::reverbStart,  &HalcyraTimeStructure::reverbStart,  nullptr, "reverb",  "start", "rev",   "Reverb start",   { 1, 500, 0.01 },    0,     "95.37",  2, " ms", "Reverb start" },
    { parameter::modalDensity, &HalcyraTimeStructure::modalDensity, nullptr, "reverb",  "modaldensity", "rev", "Modal density", { 0.2, 4, 0.01 }, 0,   "0.86",   2, "", "Modal density" },
    { parameter::air,          nullptr, &HalcyraTimeStructure::air,          "reverb",  "air",   "air",   "Air Absorption", { 0, 1, 1 },         0,     "1",      0, "", "Air absorption" },
    { parameter::infinite,     nullptr, &HalcyraTimeStructure::infinite,     "reverb",  "infinite", "infinite", "Infinite",  { 0, 1, 1 },         0,     "0",      0, "", "Infinite reverb" },
    { parameter::airFrequency, &HalcyraTimeStructure::airFrequency, nullptr, "reverb",  "airfreq", "airfreq", "Air frequency", { 20, 20000, 1 },  10000, "10000",  1, " Hz", "Air absorption frequency" },
} };
// clang-format on

/** The value a double click resets the slider to: the default. The air frequency uses the default of the air switch, 1,
    so its slider goes to its low end. */
constexpr double ParameterRow::doubleClick() const noexcept
{
    return number == parameter::airFrequency ? parameterTable[parameter::air].defaultValue() : defaultValue();
}

/** The room's volume in cubic metres: sets other parameters, and has no number of its own. */
inline constexpr SliderRange roomRange{ 10, 15000, 10 };
inline constexpr float defaultRoomSize = 2000;

/** The row of a parameter number; null for an unknown number. */
[[nodiscard]] constexpr const ParameterRow* parameterRow (HalcyraReverbParameter number) noexcept
{
    return number >= 0 && number < parameter::count ? &parameterTable[static_cast<std::size_t> (number)] : nullptr;
}

/** Reads the row's field from the record; a switch counts as 0 or 1. */
[[nodiscard]] constexpr float valueOf (const HalcyraTimeStructure& record, const ParameterRow& row) noexcept
{
    return row.isSwitch() ? static_cast<float> (record.*row.flag) : record.*row.value;
}

/** The four filters, in the order of their numbers. */
inline constexpr std::array<const char*, 4> filterNames{ "direct", "room", "early", "cluster" };

/** One field of a filter: the values a message may set, and how its slider behaves. */
struct ShelfRow
{
    float HLShelfParameters::*value;
    const char* name;        // the message's word and the slider's name
    const char* label;       // shown above the slider
    float lowest, highest;   // limits of the filter
    SliderRange range;       // of the slider
    double midPoint;         // the value at the slider's middle; 0 for a linear slider
    const char* defaultText; // its default, which a double click also sets
    bool isFrequency;        // otherwise a gain
    const char* spoken;      // the field's name for screen readers

    [[nodiscard]] constexpr double defaultValue() const noexcept { return decimal (defaultText); }
};

/** All fields of a filter, in order. G0's slider has a narrower range than the filter; beyond it, it stays at its
    end. */
inline constexpr std::array<ShelfRow, 6> shelfTable{ {
    { &HLShelfParameters::G0, "G0", "global", -200, 30, { -60, 10, 0.05 }, 0, "0", false, "global gain" },
    { &HLShelfParameters::Gl, "Gl", "low", -30, 30, { -30, 30, 0.05 }, 0, "0", false, "low gain" },
    { &HLShelfParameters::Gm, "Gm", "med", -30, 30, { -30, 30, 0.05 }, 0, "0", false, "middle gain" },
    { &HLShelfParameters::Gh, "Gh", "high", -30, 30, { -30, 30, 0.05 }, 0, "0", false, "high gain" },
    { &HLShelfParameters::fl, "fl", "low", 20, 20000, { 20, 20000, 1 }, 4000, "250", true, "low crossover" },
    { &HLShelfParameters::fh, "fh", "high", 20, 20000, { 20, 20000, 1 }, 4000, "4000", true, "high crossover" },
} };

namespace detail
{
constexpr auto joinedShelfDefaults()
{
    std::array<char, 64> text{};
    std::size_t length = 0;
    for (const auto& row : shelfTable) {
        if (length > 0)
            text[length++] = ' ';
        for (const char* c = row.defaultText; *c != '\0'; ++c)
            text[length++] = *c;
    }
    return text;
}
}

/** The defaults of a filter's fields as one text, "0 0 ...". */
inline constexpr auto filterDefaultText = detail::joinedShelfDefaults();

/** The filter with every field clipped to its limits. */
[[nodiscard]] constexpr HLShelfParameters clipped (HLShelfParameters filter) noexcept
{
    for (const auto& row : shelfTable)
        filter.*row.value = filter.*row.value < row.lowest    ? row.lowest
                            : filter.*row.value > row.highest ? row.highest
                                                              : filter.*row.value;
    return filter;
}

/** Whether all fields are finite. */
[[nodiscard]] inline bool isFinite (const HLShelfParameters& filter) noexcept
{
    for (const auto& row : shelfTable)
        if (! std::isfinite (filter.*row.value))
            return false;
    return true;
}

}

inline HalcyraTimeStructure::HalcyraTimeStructure() noexcept
{
    for (const auto& row : halcyra::parameterTable)
        if (row.isSwitch())
            this->*row.flag = row.defaultValue() != 0 ? 1 : 0;
        else
            this->*row.value = static_cast<float> (row.defaultValue());
}

inline HLShelfParameters::HLShelfParameters() noexcept
{
    for (const auto& row : halcyra::shelfTable)
        this->*row.value = static_cast<float> (row.defaultValue());
}
