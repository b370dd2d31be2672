#pragma once
#include "host/api/MaxApi.h"
#include "math/OrvaneDspVector.h"
#include "text/OrvaneDspString.h"

/** An attribute seen through its properties. A missing property is no error: each reader has a default for it. Other
    failures are logged to the Max console. Main thread. */
class MaxAttribute
{
public:
    /** For an attribute of an object or a class. */
    MaxAttribute (void* object, t_symbol* name) noexcept;
    explicit MaxAttribute (t_object* existing) noexcept : attribute (existing) {}

    [[nodiscard]] bool exists() const noexcept { return attribute != nullptr; }
    [[nodiscard]] t_symbol* name() const noexcept;
    [[nodiscard]] t_symbol* type() const noexcept;
    [[nodiscard]] t_clong flags() const noexcept;

    [[nodiscard]] bool hasOrder() const noexcept;
    /** 0 if it has none. */
    [[nodiscard]] t_atom_long GetOrder() const;
    /** The choices of an enumeration; only the fallback if there are none. */
    [[nodiscard]] qel::Vector<qel::String> GetEnumChoices (const qel::String& fallback) const;
    /** A property's atoms as text; the fallback if it is empty. */
    [[nodiscard]] qel::String GetValueOf (t_symbol* property, const qel::String& fallback = {}) const;
    [[nodiscard]] qel::String label (const qel::String& fallback = {}) const;
    [[nodiscard]] qel::String description (const qel::String& fallback = {}) const;
    [[nodiscard]] bool IsInvisible() const;
    /** False if a reset must not change it. */
    [[nodiscard]] bool CanBeReset() const;
    /** The host's attribute object; its properties are attributes of this object. */
    [[nodiscard]] t_object* object() const noexcept { return attribute; }
    /** Whether messages and the inspector cannot access it. */
    [[nodiscard]] bool isOpaque() const noexcept;

private:
    t_object* attribute;
};
