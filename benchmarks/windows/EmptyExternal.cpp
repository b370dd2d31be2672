#include "host/api/MaxApi.h"

/** Entry point of an external without classes: the floor. */
MAX_EXPORT t_clong ext_main (void*) { return 0; }
