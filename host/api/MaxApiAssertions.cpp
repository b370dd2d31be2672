#include "host/api/MaxApi.h"

/** Sizes, offsets and constants fixed by the binary interface, checked on every platform. */

#define AT(record, field, bytes) static_assert (offsetof (record, field) == (bytes), #record "." #field)
#define SIZE(record, bytes) static_assert (sizeof (record) == (bytes), #record)

SIZE (t_clong, 4);
SIZE (t_atom_long, 8);
SIZE (t_atom_float, 8);
SIZE (t_ptr_int, 8);
SIZE (t_ptr_size, 8);
SIZE (t_max_err, 8);
SIZE (t_fourcc, 4);
SIZE (method, 8);

SIZE (t_symbol, 16);
AT (t_symbol, s_thing, 8);

SIZE (t_atom, 16);
AT (t_atom, a_w, 8);

SIZE (t_messlist, 24);
AT (t_messlist, m_fun, 8);
AT (t_messlist, m_type, 16);

SIZE (t_object, 32);
AT (t_object, o_magic, 8);
AT (t_object, o_inlet, 16);
AT (t_object, o_outlet, 24);

SIZE (t_class, 144);
AT (t_class, c_freefun, 16);
AT (t_class, c_size, 24);
AT (t_class, c_tiny, 32);
AT (t_class, c_noinlet, 33);
AT (t_class, c_filename, 40);
AT (t_class, c_newmess, 48);
AT (t_class, c_menufun, 56);
AT (t_class, c_flags, 64);
AT (t_class, c_messcount, 68);
AT (t_class, c_messlist, 72);
AT (t_class, c_attributes, 80);
AT (t_class, c_extra, 88);
AT (t_class, c_obexoffset, 96);
AT (t_class, c_methods, 104);
AT (t_class, c_attr_get, 112);
AT (t_class, c_attr_gettarget, 120);
AT (t_class, c_attr_getnames, 128);
AT (t_class, c_superclass, 136);

SIZE (t_attr, 96);
AT (t_attr, name, 32);
AT (t_attr, type, 40);
AT (t_attr, flags, 48);
AT (t_attr, get, 56);
AT (t_attr, set, 64);
AT (t_attr, filterget, 72);
AT (t_attr, filterset, 80);
AT (t_attr, reserved, 88);

SIZE (t_atomarray, 56);
AT (t_atomarray, ac, 32);
AT (t_atomarray, av, 40);
AT (t_atomarray, flags, 48);

SIZE (t_dictionary, 64);
AT (t_dictionary, d_hashtab, 32);
AT (t_dictionary, d_linklist, 40);
AT (t_dictionary, d_mutex, 48);
AT (t_dictionary, d_lazysort, 56);

SIZE (t_common_symbols_table, 11640);
AT (t_common_symbols_table, symbols[common_symbol::preset_binbuf - 1], 8);
AT (t_common_symbols_table, symbols[common_symbol::dumpout - 1], 335 * 8);
AT (t_common_symbols_table, symbols[common_symbol::modified - 1], 843 * 8);

static_assert (OB_MAGIC == 0x68CEBD9B);
static_assert (A_GIMME == 8 && A_CANT == 9 && A_GIMMEBACK == 14 && A_DEFER == 0x41 && A_USURP_LOW == 0x44);
static_assert (MAX_ERR_OUT_OF_MEM == -4);
static_assert (ATTR_SET_DEFER_LOW == 0x4000000 && ATTR_DIRTY == 0x20000000);
static_assert (CLASS_FLAG_NEWDICTIONARY == 4 && CLASS_FLAG_DYNAMICCOLOR == 0x1000000);
