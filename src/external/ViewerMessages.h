#pragma once
#include "external/HalcyraControl.h"

/** Messages that change the scene's objects. Main thread; the last four are queued. */
namespace halcyra
{

/** `source INDEX KEY ...`: a key of SceneProperties, or a position. */
void changeSource (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `speaker INDEX ...`, `loudspeaker INDEX ...` */
void changeSpeaker (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `speakers ...`, `loudspeakers ...`: sets all positions. */
void changeSpeakers (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `listener yaw N`, `listener rpy N N N`, or a position. */
void changeListener (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

// Queued.
/** `areas INDEX ...`, `area INDEX ...`: a key, or the outline. */
void changeArea (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `anchor INDEX name NAME`, or a position. */
void changeAnchor (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
void adjustZoom (void* x);
/** `rotate INDEX YAW PITCH ROLL`, 0 for the whole scene. */
void rotateSources (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

}
