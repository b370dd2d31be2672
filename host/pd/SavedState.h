#pragma once
#include "host/pd/Pd.h"
#include <vector>

/** An object's state in a patch file: behind its own line, "#A saved ATTRIBUTE VALUES;" for each attribute that differs
    from the state right after creation, and "#A saved;" at the end. */
namespace pdhost
{

/** Pd binds this to the object that gets the "#A" lines of a file. */
t_symbol* recordSymbol();

/** Writes nothing if nothing differs. */
void writeState (const std::vector<NamedValues>& changes, t_binbuf* buffer);

}
