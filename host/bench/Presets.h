#pragma once
#include "host/bench/Console.h"
#include "host/bench/Objects.h"

namespace bench
{

/** Has an object write itself into a preset, as a preset object does; includes the semicolons. */
Atoms writtenToPreset (t_object* x);

}
