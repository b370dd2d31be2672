#pragma once
#include "external/HalcyraControl.h"

/** The messages that move and dress the scene. Main thread; the ones that say so do their work by the queue. */
namespace halcyra
{

/** `source INDEX KEY ...`: a key of the table in ViewerMessages.cpp, or a position. */
void source (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `speaker INDEX ...`, `loudspeaker INDEX ...` */
void speaker (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `speakers ...`, `loudspeakers ...`: all positions. */
void speakers (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `listener yaw N`, `listener rpy N N N`, or a position. */
void listener (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

// By the queue.
/** `areas INDEX ...`, `area INDEX ...`: a key, or the outline. */
void area (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `anchor INDEX name NAME`, or a position. */
void anchor (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
void adjustZoom (void* x);
/** `rotate INDEX YAW PITCH ROLL`, 0 for the whole scene. */
void rotate (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

}
