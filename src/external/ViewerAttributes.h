#pragma once
#include "external/HalcyraControl.h"
#include "max/Atoms.h"
#include "max/AttributeRow.h"
#include "max/Rows.h"

/** The attributes of the scene and its view. They set the plane, so their setter runs on the main thread.

    To add one: a field in the struct, a row in the table of ViewerAttributes.cpp, and a setter for the row. */
namespace halcyra
{

/** Sets a new value; returning false skips the notification. */
using ViewerSetter = bool (*) (t_halcyra_control* x, const orvanemax::AttributeRow& row, orvanemax::Atoms atoms);

struct ViewerAttribute
{
    orvanemax::AttributeRow row;
    ViewerSetter set;
    bool isPerSource = false; // stored in the struct's atom arrays
};

/** All rows, in order of registration. */
[[nodiscard]] orvanemax::Rows<ViewerAttribute> viewerAttributes() noexcept;

/** Initialises every mirror that must be readable before the first default is set. */
void fillViewerDefaults (t_halcyra_control* x);

}

/** The accessors registered with the host. */
t_max_err halcyra_control_viewer_set (t_halcyra_control* x, void* attribute, t_clong argc, t_atom* argv);
t_max_err halcyra_control_per_source_get (t_halcyra_control* x, void* attribute, t_clong* argc, t_atom** argv);
