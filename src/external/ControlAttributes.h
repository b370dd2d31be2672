#pragma once
#include "external/HalcyraControl.h"
#include "max/AttributeRow.h"
#include "max/Rows.h"

/** The attributes of the object's sizes, of the reverberator and of the window. */
namespace halcyra
{

struct ControlAttribute
{
    orvanemax::AttributeRow row;
    const char* category;
};

/** All of them, in order of registration. */
[[nodiscard]] orvanemax::Rows<ControlAttribute> controlAttributes() noexcept;

/** What must be readable before the first default has passed its setter: the sizes and the title. */
void fillControlDefaults (t_halcyra_control* x);

}

/** Their one setter. Sizes are taken until the object is made, reverb values go to the gate, and the window's are set
    on the main thread. */
t_max_err halcyra_control_set (t_halcyra_control* x, void* attribute, t_clong argc, t_atom* argv);
