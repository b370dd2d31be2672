#pragma once
#include "host/api/MaxLinkage.h"
#include "host/api/MaxTypes.h"

/** Outlets, the Max console, and presets. Outlets: main or scheduler thread; console: any thread. */
extern "C"
{

    /** Only in `new`; null allows any message. The first one created is the rightmost. Freed with the object. */
    MAX_API void* outlet_new (void* x, const char* message);

    // Return null on stack overflow, otherwise after everything downstream has run.
    MAX_API void* outlet_bang (t_outlet* o);
    MAX_API void* outlet_int (t_outlet* o, t_atom_long value);
    MAX_API void* outlet_float (t_outlet* o, double value);
    MAX_API void* outlet_list (t_outlet* o, t_symbol* nothing, std::int16_t ac, t_atom* av);
    MAX_API void* outlet_anything (t_outlet* o, t_symbol* selector, std::int16_t ac, t_atom* av);

    // One row each, without a line feed; x may be null. Plain conversions only: the host formats.
    MAX_API void post (const char* format, ...) MAX_FORMAT (1, 2);
    MAX_API void object_post (t_object* x, const char* format, ...) MAX_FORMAT (2, 3);
    MAX_API void object_warn (t_object* x, const char* format, ...) MAX_FORMAT (2, 3);
    MAX_API void object_error (t_object* x, const char* format, ...) MAX_FORMAT (2, 3);
    MAX_API void object_bug (t_object* x, const char* format, ...) MAX_FORMAT (2, 3);

    /** Appends a message and a semicolon. While a preset is saving, its binbuf is gensym("_preset")->s_thing. */
    MAX_API void binbuf_insert (void* binbuf, t_symbol* nothing, std::int16_t argc, t_atom* argv);
}
