#include "host/api/MaxApi.h"

/** The entry of an external that brings no class: the floor. */
MAX_EXPORT void ext_main (void*) {}
