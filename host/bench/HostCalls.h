#pragma once
#include "host/api/MaxApi.h"
#include "host/bench/Classes.h"
#include <array>

/** Calls from the host into an external. Where the interface has a 32-bit count, the register's upper half is
    deliberately filled with garbage, as a real host may leave it: functions that declare their count too wide fail here
    and not on stage. */
namespace bench
{

void callFree (method function, void* x);
void* callNew (method function, t_symbol* name, const std::vector<t_atom>& atoms);
void* callUntyped (method function, void* x, const std::array<void*, 8>& arguments);
void callDeferred (method function, void* ob, t_symbol* sym, std::vector<t_atom>& atoms);
void callQelem (method function, void* ob);
t_max_err callGetter (method function, void* x, void* attribute, t_clong* ac, t_atom** av);
t_max_err callSetter (method function, void* x, void* attribute, std::vector<t_atom>& atoms);
t_max_err callNotify (method function, void* x, t_symbol* name, t_symbol* message, void* sender, void* data);
t_max_err callGetValueOf (method function, void* x, t_clong* ac, t_atom** av);
t_max_err callSetValueOf (method function, void* x, std::vector<t_atom>& atoms);
void callAssist (method function, void* x, void* box, t_clong io, t_clong index, char* text);

/** Calls a method with a message's atoms. Returns empty text if it ran, otherwise the Max console's word for what is
    wrong: "missing", "extra" or "bad". */
const char* callWithAtoms (const Method& called, void* x, t_symbol* selector, std::vector<t_atom>& atoms);

}
