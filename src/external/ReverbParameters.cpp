#include "external/ReverbParameters.h"

#include <algorithm>

namespace halcyra
{

const ReverbWords& reverbWords (HalcyraReverbParameter number)
{
    static const auto words = [] {
        std::array<ReverbWords, parameter::count> interned{};
        std::transform (parameterTable.begin(), parameterTable.end(), interned.begin(), [] (const ParameterRow& row) {
            return ReverbWords{ gensym (row.selector), gensym (row.key) };
        });
        return interned;
    }();
    return words[static_cast<std::size_t> (number)];
}

}
