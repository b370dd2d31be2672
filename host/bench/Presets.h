#pragma once
#include "host/bench/Console.h"
#include "host/bench/Objects.h"

namespace bench
{

/** Lets an object write itself into a preset, as a preset object does when it stores; semicolons included. */
Atoms writtenToPreset (t_object* x);

}
