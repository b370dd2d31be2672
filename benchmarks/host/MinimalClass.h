#pragma once
#include "host/api/MaxApi.h"

/** Entry point of "bench.minimal": a class whose message `gain` defers and then sends `reverb gain VALUE` out of its
    one outlet, and which has an attribute `level` with a clip filter and a setter that does the same. What any
    external pays for such a message in this host: the floor that others are measured against. */
t_clong minimal_main (void*);
