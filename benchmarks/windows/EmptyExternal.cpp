#include "host/api/MaxApi.h"

/** The entry of an external that brings no class: the floor. */
MAX_EXPORT t_clong ext_main (void*) { return 0; }
