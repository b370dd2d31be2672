#pragma once
#include <cstddef>
#include <cstdint>

/** Types of Max's C interface with the layout of its 64-bit Windows version, on every platform: Max's `long` is
    t_clong, 32 bits, never the compiler's own long. */

using t_clong = std::int32_t;  // Max's `long`
using t_atom_long = long long; // print with "%lld"
using t_atom_float = double;
using t_ptr_int = long long;
using t_ptr_uint = unsigned long long;
using t_ptr_size = unsigned long long;
using t_max_err = long long;    // 64 bits: an accessor that returns less leaves garbage in the upper half
using t_fourcc = std::uint32_t; // 'JSON' is 0x4A534F4E
using t_filepath = std::int16_t;

/** Any function that Max calls; see max_method() for the conversion. */
using method = void* (*)(void*);

struct t_class;
struct t_object;
using t_outlet = t_object; // opaque: made by outlet_new, known by pointer alone
using t_qelem = void;      // opaque: made by qelem_new

/** An interned text. Only gensym creates one, so equal texts have equal pointers. */
struct t_symbol
{
    const char* s_name; // read only
    t_object* s_thing;  // free for whatever the name refers to
};

union word
{
    t_atom_long w_long;
    t_atom_float w_float;
    t_symbol* w_sym;
    t_object* w_obj;
};

/** One value of a message: a type code (A_LONG, ...) and the value. */
struct t_atom
{
    std::int16_t a_type;
    word a_w;
};

/** One method of a class. Entry -1 of an object's list holds its t_class in m_sym. */
struct t_messlist
{
    t_symbol* m_sym;
    method m_fun;
    char m_type[8];
};

/** The head of every object's struct. */
struct t_object
{
    t_messlist* o_messlist;
    t_ptr_int o_magic; // OB_MAGIC while the object is alive
    t_object* o_inlet;
    t_object* o_outlet;
};

/** A class. Externals access only c_flags; everything else goes through functions. */
struct t_class
{
    t_symbol* c_sym;
    t_object** c_freelist;
    method c_freefun;
    t_ptr_size c_size;
    char c_tiny;
    char c_noinlet;
    t_symbol* c_filename;
    method c_newmess;
    method c_menufun;
    t_clong c_flags;
    t_clong c_messcount;
    t_messlist* c_messlist;
    void* c_attributes;
    void* c_extra;
    t_clong c_obexoffset;
    void* c_methods;
    method c_attr_get;
    method c_attr_gettarget;
    method c_attr_getnames;
    t_class* c_superclass;
};

/** An attribute; opaque to its users. */
struct t_attr
{
    t_object ob;
    t_symbol* name;
    t_symbol* type;
    t_clong flags;
    method get;
    method set;
    method filterget;
    method filterset;
    void* reserved;
};

/** A list of atoms as an object; opaque to its users. */
struct t_atomarray
{
    t_object ob;
    t_clong ac;
    t_atom* av;
    t_clong flags;
};

/** A dictionary; opaque to its users. */
struct t_dictionary
{
    t_object ob;
    void* d_hashtab;
    void* d_linklist;
    void* d_mutex;
    char d_lazysort;
};
