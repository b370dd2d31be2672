#pragma once
#include "host/api/MaxConstants.h"
#include "host/api/MaxLinkage.h"
#include "host/api/MaxTypes.h"

/** Atoms, memory, text and symbols. Any thread. */
extern "C"
{

    // Atoms. Reading converts between number types, a float to a long towards zero; a symbol reads as 0.
    MAX_API t_max_err atom_setlong (t_atom* a, t_atom_long value);
    MAX_API t_max_err atom_setfloat (t_atom* a, double value);
    MAX_API t_max_err atom_setsym (t_atom* a, t_symbol* value);
    MAX_API t_max_err atom_setobj (t_atom* a, void* value);
    MAX_API t_atom_long atom_getlong (const t_atom* a);
    MAX_API t_atom_float atom_getfloat (const t_atom* a);
    MAX_API t_symbol* atom_getsym (const t_atom* a); // the empty symbol for other types, never null
    MAX_API void* atom_getobj (const t_atom* a);     // null for other types
    MAX_API t_clong atom_gettype (const t_atom* a);

    /** Copies at most `count` atoms into `values`; the rest of `values` is unchanged. */
    MAX_API t_max_err atom_getfloat_array (t_clong ac, t_atom* av, t_clong count, float* values);
    MAX_API t_max_err atom_getlong_array (t_clong ac, t_atom* av, t_clong count, t_atom_long* values);
    MAX_API t_max_err atom_getdouble_array (t_clong ac, t_atom* av, t_clong count, double* values);

    /** If *ac and *av are zero, allocates `minsize` atoms and sets *alloc to 1; otherwise uses the given memory and
        sets *alloc to 0. The receiver frees with sysmem_freeptr. */
    MAX_API t_max_err atom_alloc_array (t_clong minsize, t_clong* ac, t_atom** av, char* alloc);

    /** Parses text into integers, floats and symbols; double quotes group. Free with sysmem_freeptr. */
    MAX_API t_max_err atom_setparse (t_clong* ac, t_atom** av, const char* text);

    MAX_API t_clong atomisatomarray (t_atom* a);
    MAX_API t_clong atomisdictionary (t_atom* a);

    // Memory for every block that crosses to the host or back. sysmem_newptr does not clear it.
    MAX_API char* sysmem_newptr (t_ptr_size size);
    MAX_API char* sysmem_newptrclear (t_ptr_size size);
    MAX_API void sysmem_freeptr (void* block); // null is ignored

    /** The source comes first, the reverse of memcpy. */
    MAX_API void sysmem_copyptr (const void* source, void* destination, t_ptr_size bytes);

    /** `size` is the whole buffer; the result is always null-terminated. */
    MAX_API char* strncpy_zero (char* destination, const char* source, t_clong size);

    // Symbols.
    MAX_API t_symbol* gensym (const char* text);
    MAX_API t_symbol* gensym_tr (const char* text); // translated; the same text if there is no translation
    MAX_API char* str_tr (const char* text);        // translated; copy it, do not free it
    MAX_API t_symbol* symbol_unique (void);         // unique, for example u123456789
    MAX_API t_max_err symbolarray_sort (t_clong count, t_symbol** symbols); // in place, by bytes
    MAX_API struct t_common_symbols_table* common_symbols_gettable (void);
}
