#pragma once
#include "host/api/MaxApi.h"
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

/** An attribute as its properties tell it. A property that is missing is no error: each reader has its answer for it.
    Other failures are told in the Max window. Main thread. */
class MaxAttribute
{
public:
    /** The attribute of an object, or a class. */
    MaxAttribute (void* object, t_symbol* name) noexcept;
    explicit MaxAttribute (t_object* existing) noexcept : attribute (existing) {}

    [[nodiscard]] bool exists() const noexcept { return attribute != nullptr; }
    [[nodiscard]] t_symbol* name() const noexcept;
    [[nodiscard]] t_symbol* type() const noexcept;
    [[nodiscard]] t_clong flags() const noexcept;

    [[nodiscard]] bool hasOrder() const noexcept;
    /** 0 when it has none. */
    [[nodiscard]] t_atom_long GetOrder() const;
    /** The choices of an enumeration; the fallback alone when there are none. */
    [[nodiscard]] qel::Vector<qel::String> GetEnumChoices (const qel::String& fallback) const;
    /** A property's atoms as text; the fallback when it holds none. */
    [[nodiscard]] qel::String GetValueOf (t_symbol* property, const qel::String& fallback = {}) const;
    [[nodiscard]] qel::String label (const qel::String& fallback = {}) const;
    [[nodiscard]] qel::String description (const qel::String& fallback = {}) const;
    [[nodiscard]] bool IsInvisible() const;
    /** False for one that a reset leaves alone. */
    [[nodiscard]] bool CanBeReset() const;
    /** The attribute as the host has it; its properties are attributes of this object. */
    [[nodiscard]] t_object* object() const noexcept { return attribute; }
    /** Neither messages nor the inspector may read or set it. */
    [[nodiscard]] bool isOpaque() const noexcept;

private:
    t_object* attribute;
};
