#include "external/FilterMessage.h"

#include "max/OrvanemaxSymbols.h"

#include <algorithm>
#include <cmath>

namespace halcyra
{
namespace
{

using orvanemax::Atoms;
using orvanemax::symbols;

float clip (float value, const ShelfRow& row) noexcept { return std::clamp (value, row.lowest, row.highest); }

/** Sets consecutive fields from consecutive atoms; always true. */
bool setFields (HLShelfParameters& filter, Atoms atoms, std::size_t first, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const auto& row = shelfTable[first + i];
        filter.*row.value = clip (atoms.number (i), row);
    }
    return true;
}

float decibelsOfLinearGain (float gain) noexcept
{
    constexpr float smallest = 1.1920929e-7f;
    return 10.0f * std::log10 (std::max (gain, smallest));
}

struct FilterKey
{
    SymbolField word;
    std::size_t field; // index into shelfTable
    bool isLinear;
};

using Words = t_orvanemax_symbols;
constexpr FilterKey filterKeys[] = {
    { &Words::G0, 0, false }, { &Words::Gl, 1, false }, { &Words::Gm, 2, false }, { &Words::Gh, 3, false },
    { &Words::g0, 0, true },  { &Words::gl, 1, true },  { &Words::gm, 2, true },  { &Words::gh, 3, true },
    { &Words::fl, 4, false }, { &Words::fh, 5, false },
};

bool setOneField (HLShelfParameters& filter, const t_symbol* key, float value)
{
    for (const auto& row : filterKeys)
        if (orvanemax::symbol (row.word) == key) {
            const auto& field = shelfTable[row.field];
            filter.*field.value = clip (row.isLinear ? decibelsOfLinearGain (value) : value, field);
            return true;
        }
    return false;
}

}

bool parseFilter (HLShelfParameters& filter, Atoms atoms)
{
    const auto* key = atoms.fit ("s") ? atoms.symbol (0) : nullptr;
    const auto behind = atoms.from (1);
    if (atoms.fit ("snnnnnn") && (key == symbols().hlshelf || key == symbols().params))
        return setFields (filter, behind, 0, 6);
    if (atoms.fit ("nnnnnn"))
        return setFields (filter, atoms, 0, 6);
    // The number of values selects the form, even after the key of a form with fewer.
    if (atoms.fit ("snnnn"))
        return key == symbols().gains && setFields (filter, behind, 0, 4);
    if (atoms.fit ("snn"))
        return key == symbols().freqs && setFields (filter, behind, 4, 2);
    return atoms.fit ("sn") && setOneField (filter, key, behind.number (0));
}

void copyFilter (const HLShelfParameters& filter, float (&values)[6]) noexcept
{
    std::transform (shelfTable.begin(), shelfTable.end(), values,
                    [&] (const ShelfRow& row) { return filter.*row.value; });
}

}
