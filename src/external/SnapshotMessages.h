#pragma once
#include "external/HalcyraControl.h"

/** The messages that store, recall and file snapshots of the source positions. Their work is done by the queue, on
    the main thread. A name is a symbol, or a long as its digits. */
namespace halcyra
{

void storeSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
void recallSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** All snapshots, or the named one. */
void clearSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** `xsnapshot FROM TO AMOUNT` */
void interpolateSnapshots (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
/** Without a path these ask for one; `none` does nothing. */
void readSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);
void writeSnapshot (void* x, t_symbol* selector, t_clong argc, t_atom* argv);

}
