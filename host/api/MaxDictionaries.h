#pragma once
#include "host/api/MaxLinkage.h"
#include "host/api/MaxTypes.h"

/** Dictionaries, their registry, and atom arrays. Main thread. */
extern "C"
{

    MAX_API t_dictionary* dictionary_new (void);

    // Appending replaces an existing key's value. Atoms are copied; the dictionary takes ownership of objects.
    MAX_API t_max_err dictionary_appendlong (t_dictionary* d, t_symbol* key, t_atom_long value);
    MAX_API t_max_err dictionary_appendfloat (t_dictionary* d, t_symbol* key, double value);
    MAX_API t_max_err dictionary_appendsym (t_dictionary* d, t_symbol* key, t_symbol* value);
    MAX_API t_max_err dictionary_appendatoms (t_dictionary* d, t_symbol* key, t_clong argc, t_atom* argv);
    MAX_API t_max_err dictionary_appendatomarray (t_dictionary* d, t_symbol* key, t_object* value);
    MAX_API t_max_err dictionary_appenddictionary (t_dictionary* d, t_symbol* key, t_object* value);

    /** Copies the atom; an array or a dictionary is returned as an A_OBJ atom that d still owns. */
    MAX_API t_max_err dictionary_getatom (const t_dictionary* d, t_symbol* key, t_atom* value);
    MAX_API t_max_err dictionary_getatoms (const t_dictionary* d, t_symbol* key, t_clong* argc, t_atom** argv); // inner
    MAX_API t_max_err dictionary_copyatoms (const t_dictionary* d, t_symbol* key, t_clong* argc, t_atom** argv); // own

    // Keys: unordered, or in insertion order. Start with 0 and null; free only with dictionary_freekeys.
    MAX_API t_max_err dictionary_getkeys (const t_dictionary* d, t_clong* count, t_symbol*** keys);
    MAX_API t_max_err dictionary_getkeys_ordered (const t_dictionary* d, t_clong* count, t_symbol*** keys);
    MAX_API void dictionary_freekeys (t_dictionary* d, t_clong count, t_symbol** keys);

    MAX_API t_clong dictionary_hasentry (const t_dictionary* d, t_symbol* key);
    MAX_API t_max_err dictionary_clear (t_dictionary* d);

    /** Registers d under *name, or under a new name stored there if it is null. If the name is taken, frees d and
        returns the dictionary registered under it: continue with the result. object_free unregisters. */
    MAX_API t_dictionary* dictobj_register (t_dictionary* d, t_symbol** name);
    MAX_API t_max_err dictobj_unregister (t_dictionary* d);
    MAX_API t_dictionary* dictobj_findregistered_retain (t_symbol* name); // null if unknown; balance with release
    MAX_API t_max_err dictobj_release (t_dictionary* d);

    MAX_API t_atomarray* atomarray_new (t_clong ac, t_atom* av);                      // copies
    MAX_API t_max_err atomarray_getatoms (t_atomarray* x, t_clong* ac, t_atom** av);  // inner pointer
    MAX_API t_max_err atomarray_copyatoms (t_atomarray* x, t_clong* ac, t_atom** av); // free with sysmem_freeptr
}
