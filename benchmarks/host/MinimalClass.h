#pragma once
#include "host/api/MaxApi.h"

/** Entry point of "bench.minimal", the floor that other classes are measured against: what any external pays for a
    message in this host. Its message `gain` defers and sends `reverb gain VALUE` from its only outlet, `many` defers
    and sends it that many times, and the attribute `level` has a clip filter and a setter that sends it too. */
t_clong minimal_main (void*);
