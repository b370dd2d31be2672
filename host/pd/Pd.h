#pragma once
#include "host/pd/Value.h"
#include <vector>

#include <m_pd.h>

#include <g_canvas.h> // needs the one above

// Exported by Pd for itself and for externals, in headers that are not for C++ or in none.
extern "C"
{
    void sys_addpollfn (int descriptor, void (*readable) (void*, int), void* context);
    void sys_rmpollfn (int descriptor);
    int sys_havegui (void);
    void outlet_setstacklim (void);
}

/** Converts between Pd's atoms and ours. */
namespace pdhost
{

/** Numbers and words; pointers and other types are dropped. */
Values valuesOf (int count, const t_atom* atoms);

t_atom atomOf (const Value& value);
std::vector<t_atom> atomsOf (const Values& values);

}
