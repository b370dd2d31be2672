#include "external/ReverbParameters.h"

#include <algorithm>

namespace halcyra
{

const ReverbWords& reverbWords (HalcyraReverbParameter number)
{
    static const auto words = [] {
        std::array<ReverbWords, parameter::count> interned{};
        for (const auto& row : parameterTable) {
            const auto index = static_cast<std::size_t> (row.number);
            interned[index] = { gensym (reverbMirrors[index].attribute.name), gensym (row.selector), gensym (row.key) };
        }
        return interned;
    }();
    return words[static_cast<std::size_t> (number)];
}

const ReverbMirror* parameterNamed (t_symbol* attribute)
{
    const auto row = std::find_if (reverbMirrors.begin(), reverbMirrors.end(), [=] (const ReverbMirror& mirror) {
        return reverbWords (mirror.number).attribute == attribute;
    });
    return row == reverbMirrors.end() ? nullptr : &*row;
}

const FilterMirror* filterNamed (t_symbol* selector) noexcept
{
    const auto row = std::find_if (filterMirrors.begin(), filterMirrors.end(), [=] (const FilterMirror& mirror) {
        return orvanemax::symbol (mirror.selector) == selector;
    });
    return row == filterMirrors.end() ? nullptr : &*row;
}

}
