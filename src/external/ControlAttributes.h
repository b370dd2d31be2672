#pragma once
#include "external/HalcyraControl.h"
#include "max/AttributeRow.h"

/** The attributes of the object's sizes, of the reverberator and of the window. */
namespace halcyra
{

struct ControlAttribute
{
    orvanemax::AttributeRow row;
    const char* category;
};

struct ControlAttributeTable
{
    const ControlAttribute* first;
    std::size_t count;

    [[nodiscard]] const ControlAttribute* begin() const noexcept { return first; }
    [[nodiscard]] const ControlAttribute* end() const noexcept { return first + count; }
};

/** All of them, in order of registration. */
[[nodiscard]] ControlAttributeTable controlAttributes() noexcept;

/** What must be readable before the first default has passed its setter: the sizes and the title. */
void fillControlDefaults (t_halcyra_control* x);

}

/** Their one setter. Sizes are taken until the object is made, reverb values go to the gate, and the window's are set
    on the main thread. */
t_max_err halcyra_control_set (t_halcyra_control* x, void* attribute, t_clong argc, t_atom* argv);
