#include "max/AttributeList.h"

#include "max/AttributeValue.h"
#include "max/MaxAttribute.h"
#include "max/MaxErrorText.h"
#include "max/OrvanemaxSymbols.h"

#include <algorithm>
#include <utility>

namespace orvanemax
{
namespace
{

using Words = t_orvanemax_symbols;

/** Attributes of the host's boxes and parameters. */
constexpr SymbolField hostAttributes[] = {
    &Words::annotation,
    &Words::hidden,
    &Words::hint,
    &Words::ignoreclick,
    &Words::patching_rect,
    &Words::patching_position,
    &Words::patching_size,
    &Words::varname,
    &Words::background,
    &Words::parameter_enable,
    &Words::_parameter_initial,
    &Words::_parameter_initial_enable,
    &Words::_parameter_invisible,
    &Words::_parameter_longname,
    &Words::_parameter_order,
    &Words::_parameter_shortname,
    &Words::_parameter_type,
    &Words::annotation_name,
};

bool isHostAttribute (t_symbol* name) noexcept
{
    return std::any_of (std::begin (hostAttributes), std::end (hostAttributes),
                        [name] (SymbolField field) { return symbol (field) == name; });
}

/** Whether users see the attribute, provided it is not empty. */
bool isForUsers (void* object, t_symbol* name)
{
    const MaxAttribute attribute (object, name);
    return attribute.exists() && ! attribute.IsInvisible() && ! attribute.isOpaque() && ! isHostAttribute (name);
}

/** The number of atoms read; a failure is logged and counts as 0. */
t_clong sizeOf (const AttributeValue& value, void* object, t_symbol* name)
{
    if (value.error() != MAX_ERR_NONE)
        tellError (object, std::string ("GetNumberOfAtomsNeededToStoreAttribute : ") + errorText (value.error()) +
                               " in object_attr_getvalueof (" + name->s_name + ")");
    else if (value.size() < 0)
        tellError (object, std::string ("GetNumberOfAtomsNeededToStoreAttribute : error in object_attr_getvalueof ") +
                               name->s_name + " (ac=" + std::to_string (value.size()) + ")");
    else
        return value.size();
    return 0;
}

void sortByOrder (void* object, AttributeNames& names)
{
    struct Ranked
    {
        t_symbol* name;
        bool hasOrder;
        t_atom_long order;
    };
    std::vector<Ranked> ranked;
    for (auto* name : names) {
        const MaxAttribute attribute (object, name);
        ranked.push_back ({ name, attribute.hasOrder(), attribute.GetOrder() });
    }
    std::stable_sort (ranked.begin(), ranked.end(), [] (const Ranked& a, const Ranked& b) {
        return a.hasOrder != b.hasOrder ? a.hasOrder : a.hasOrder && a.order < b.order;
    });
    std::transform (ranked.begin(), ranked.end(), names.begin(), [] (const Ranked& r) { return r.name; });
}

}

AttributeNames attributeNames (void* object, SortMode mode)
{
    t_clong count = 0;
    t_symbol** found = nullptr;
    object_attr_getnames (object, &count, &found);
    if (found == nullptr)
        return {};
    if (mode == SortMode::byName)
        symbolarray_sort (count, found);
    AttributeNames names (found, found + count);
    sysmem_freeptr (found);
    if (mode == SortMode::byOrder)
        sortByOrder (object, names);
    return names;
}

AttributeNames visibleAttributes (void* object, SortMode mode)
{
    auto names = attributeNames (object, mode);
    const auto isHidden = [=] (t_symbol* name) {
        return ! isForUsers (object, name) || GetNumberOfAtomsNeededToStoreAttribute (object, name) == 0;
    };
    names.erase (std::remove_if (names.begin(), names.end(), isHidden), names.end());
    return names;
}

std::vector<VisibleValue> visibleValues (void* object)
{
    std::vector<VisibleValue> values;
    for (auto* name : attributeNames (object, SortMode::byName))
        if (isForUsers (object, name))
            if (AttributeValue value (object, name); sizeOf (value, object, name) > 0)
                values.push_back ({ name, std::move (value) });
    return values;
}

t_clong numberOfAtoms (const std::vector<VisibleValue>& values) noexcept
{
    t_clong sum = 0;
    for (const auto& [name, value] : values)
        sum += value.size();
    return sum;
}

t_clong GetNumberOfAtomsNeededToStoreAttribute (void* object, t_symbol* name)
{
    return sizeOf (AttributeValue (object, name), object, name);
}

t_clong numberOfAtoms (void* object, const AttributeNames& names)
{
    t_clong sum = 0;
    for (auto* name : names)
        sum += GetNumberOfAtomsNeededToStoreAttribute (object, name);
    return sum;
}

}
