#pragma once
#include "host/api/MaxApi.h"
#include "max/AttributeValue.h"

#include <vector>

namespace orvanemax
{

/** Order of a list of attributes: the host's, by name, or by the property `order`. */
enum class SortMode
{
    none = 0,
    byName = 1,
    byOrder = 2
};

using AttributeNames = std::vector<t_symbol*>;

/** All attributes of an object. Sorting by order is stable; attributes without an order come last. Main thread. */
[[nodiscard]] AttributeNames attributeNames (void* object, SortMode mode);

/** As above, without what users do not see: invisible and opaque attributes, those of the host's boxes and parameters,
    and empty ones. */
[[nodiscard]] AttributeNames visibleAttributes (void* object, SortMode mode = SortMode::byName);

/** An attribute and its value: at least one atom. */
struct VisibleValue
{
    t_symbol* name;
    AttributeValue value;
};

/** The visible attributes by name, each read once. */
[[nodiscard]] std::vector<VisibleValue> visibleValues (void* object);

/** The total of their atoms. */
[[nodiscard]] t_clong numberOfAtoms (const std::vector<VisibleValue>& values) noexcept;

/** How many atoms the attribute currently holds; a failure is logged and counts as 0. */
[[nodiscard]] t_clong GetNumberOfAtomsNeededToStoreAttribute (void* object, t_symbol* name);

/** The total over a list of attributes. */
[[nodiscard]] t_clong numberOfAtoms (void* object, const AttributeNames& names);

}
