#pragma once
#include "external/HalcyraControl.h"
#include "max/Atoms.h"
#include "max/AttributeRow.h"
#include "max/Rows.h"

/** The attributes of the scene and its view. They set the plane, so their setter runs on the main thread.

    To add one: give the record a field, the table in ViewerAttributes.cpp a row, and the row a setter. */
namespace halcyra
{

/** Takes a new value; false stops before the notification. */
using ViewerSetter = bool (*) (t_halcyra_control* x, const orvanemax::AttributeRow& row, orvanemax::Atoms atoms);

struct ViewerAttribute
{
    orvanemax::AttributeRow row;
    ViewerSetter set;
    bool isPerSource = false; // its values are atoms of the record's own
};

/** All of them, in order of registration. */
[[nodiscard]] orvanemax::Rows<ViewerAttribute> viewerAttributes() noexcept;

/** Fills every mirror that must be readable before the first default has passed its setter. */
void fillViewerDefaults (t_halcyra_control* x);

}

/** The accessors that the host gets. */
t_max_err halcyra_control_viewer_set (t_halcyra_control* x, void* attribute, t_clong argc, t_atom* argv);
t_max_err halcyra_control_per_source_get (t_halcyra_control* x, void* attribute, t_clong* argc, t_atom** argv);
