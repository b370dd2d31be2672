#pragma once
#include "host/pd/Pd.h"
#include <vector>

/** An object's state in a patch file: after its own line, "#A saved ATTRIBUTE VALUES;" for each attribute that differs
    from the state right after creation, then "#A saved;". */
namespace pdhost
{

/** Pd binds this symbol to the object that receives a file's "#A" lines. */
t_symbol* recordSymbol();

/** Writes nothing if there are no changes. */
void writeState (const std::vector<NamedValues>& changes, t_binbuf* buffer);

}
