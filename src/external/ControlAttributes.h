#pragma once
#include "external/HalcyraControl.h"
#include "max/AttributeRow.h"
#include "max/Rows.h"

/** The attributes for the object's sizes, the reverberator and the window. */
namespace halcyra
{

struct ControlAttribute
{
    orvanemax::AttributeRow row;
    const char* category;
};

/** All rows, in order of registration. */
[[nodiscard]] orvanemax::Rows<ControlAttribute> controlAttributes();

/** Initialises what must be readable before the first default is set: the sizes and the title. */
void fillControlDefaults (t_halcyra_control* x);

}

/** Their common setter. Sizes are accepted until the object is constructed, reverb values go to the gate, and window
    attributes are set on the main thread. */
t_max_err halcyra_control_set (t_halcyra_control* x, void* attribute, t_clong argc, t_atom* argv);
