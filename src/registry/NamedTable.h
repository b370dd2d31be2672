#pragma once
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

#include <cstddef>

namespace Ambrel
{

/** Values by name, in insertion order. Small and filled once; looking up a name never inserts it. */
template <typename Value>
class NamedTable
{
public:
    /** Replaces the value of an existing name and keeps its place. */
    void set (const qel::String& name, const Value& value)
    {
        if (find (name) == nullptr) {
            names.push_back (name);
            values.push_back (Value());
        }
        values[indexOf (name)] = value;
    }

    /** Null for an unknown name. */
    [[nodiscard]] const Value* find (const qel::String& name) const noexcept
    {
        const auto index = indexOf (name);
        return index == names.size() ? nullptr : &values[index];
    }

    [[nodiscard]] std::size_t size() const noexcept { return names.size(); }

private:
    [[nodiscard]] std::size_t indexOf (const qel::String& name) const noexcept
    {
        std::size_t index = 0;
        while (index < names.size() && names[index] != name)
            ++index;
        return index;
    }

    qel::Vector<qel::String> names;
    qel::Vector<Value> values;
};

}
