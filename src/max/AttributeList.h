#pragma once
#include "host/api/MaxApi.h"
#include "max/AttributeValue.h"

#include <vector>

namespace orvanemax
{

/** How a list of attributes is ordered: as the host gives it, by name, or by the property `order`. */
enum class SortMode
{
    none = 0,
    byName = 1,
    byOrder = 2
};

using AttributeNames = std::vector<t_symbol*>;

/** All attributes of an object. By order: those without one behind all others, equals as they came. Main thread. */
[[nodiscard]] AttributeNames attributeNames (void* object, SortMode mode);

/** The same without what users do not see: invisible and opaque ones, those of the host's boxes and parameters, and
    those that hold nothing. */
[[nodiscard]] AttributeNames visibleAttributes (void* object, SortMode mode = SortMode::byName);

/** An attribute and what it holds: at least one atom. */
struct VisibleValue
{
    t_symbol* name;
    AttributeValue value;
};

/** The visible attributes by name, each read once. */
[[nodiscard]] std::vector<VisibleValue> visibleValues (void* object);

/** The sum of their atoms. */
[[nodiscard]] t_clong numberOfAtoms (const std::vector<VisibleValue>& values) noexcept;

/** How many atoms the attribute holds now; a failure is told and counts 0. */
[[nodiscard]] t_clong GetNumberOfAtomsNeededToStoreAttribute (void* object, t_symbol* name);

/** The sum over a list of attributes. */
[[nodiscard]] t_clong numberOfAtoms (void* object, const AttributeNames& names);

}
