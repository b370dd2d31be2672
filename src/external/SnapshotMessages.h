#pragma once
#include "external/HalcyraControl.h"

/** Messages that store, recall, read and write snapshots of the source positions. Queued, on the main thread. A name is
    a symbol, or a long as its digits. */
namespace halcyra
{

void storeSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
void recallSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** Clears all snapshots, or the named one. */
void clearSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `xsnapshot FROM TO AMOUNT` */
void interpolateSnapshots (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** Without a path these ask for one; `none` does nothing. */
void readSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
void writeSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

}
