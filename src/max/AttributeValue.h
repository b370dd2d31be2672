#pragma once
#include "max/Atoms.h"

#include <utility>

namespace orvanemax
{

/** A snapshot of the atoms of an attribute, or of an attribute's property, taken at construction. */
class AttributeValue
{
public:
    AttributeValue (void* owner, t_symbol* name) noexcept
        : failure (object_attr_getvalueof (owner, name, &count, &storage))
    {}
    ~AttributeValue()
    {
        if (storage != nullptr)
            sysmem_freeptr (storage);
    }
    AttributeValue (AttributeValue&& other) noexcept
        : count (other.count), storage (std::exchange (other.storage, nullptr)), failure (other.failure)
    {}
    AttributeValue (const AttributeValue&) = delete;
    AttributeValue& operator= (const AttributeValue&) = delete;

    [[nodiscard]] t_max_err error() const noexcept { return failure; }
    [[nodiscard]] Atoms atoms() const noexcept { return { count, storage }; }
    [[nodiscard]] t_atom* data() const noexcept { return storage; }
    [[nodiscard]] t_clong size() const noexcept { return count; }

private:
    t_clong count = 0;
    t_atom* storage = nullptr;
    t_max_err failure; // last: its initialiser fills the two above
};

}
