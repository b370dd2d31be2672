#pragma once
#include "host/api/MaxConstants.h"
#include "host/api/MaxLinkage.h"
#include "host/api/MaxTypes.h"

/** Classes, their attributes, and objects. Classes and creation: main thread. Attribute values: any thread; the setter
    runs on the caller's. */
extern "C"
{

    // Classes. Lists of argument types are zero-terminated ints.
    MAX_API t_class* class_new (const char* name, method mnew, method mfree, t_clong size, method menu, int type, ...);
    MAX_API t_max_err class_addmethod (t_class* c, method function, const char* name, ...);
    MAX_API t_max_err class_addattr (t_class* c, t_object* attribute); // the class takes ownership
    MAX_API t_max_err class_register (t_symbol* name_space, t_class* c);
    MAX_API t_class* class_findbyname (t_symbol* name_space, t_symbol* name);
    MAX_API void* class_attr_get (t_class* c, t_symbol* name); // borrowed, or null

    /** Adds a property to an attribute, parsed from text as by atom_setparse: blanks separate. */
    MAX_API t_max_err class_attr_addattr_parse (t_class* c, const char* attribute, const char* property, t_symbol* type,
                                                t_clong flags, const char* text);

    /** The same from arguments. Each letter of `format` takes one argument: c l f d s o a for char, t_atom_long, float
        and double (both as double), t_symbol*, object, t_atom*; a capital takes an int count and an array. */
    MAX_API t_max_err class_attr_addattr_format (t_class* c, const char* attribute, const char* property,
                                                 t_symbol* type, t_clong flags, const char* format, ...);

    /** An attribute stored in a field at `offset`. A null accessor means the default one. */
    MAX_API t_object* attr_offset_new (const char* name, t_symbol* type, t_clong flags, method get, method set,
                                       t_clong offset);

    /** The same for an array of `size` items; `offsetcount` is 0 or the offset of a 32-bit count. */
    MAX_API t_object* attr_offset_array_new (const char* name, t_symbol* type, t_clong size, t_clong flags, method get,
                                             method set, t_clong offsetcount, t_clong offset);

    // Filters work on numbers as doubles, before the setter and after the getter.
    MAX_API t_max_err attr_addfilter_clip (void* attribute, double min, double max, t_clong usemin, t_clong usemax);
    MAX_API t_max_err attr_addfilterset_clip (void* attribute, double min, double max, t_clong usemin, t_clong usemax);
    MAX_API t_max_err attr_addfilterget_clip (void* attribute, double min, double max, t_clong usemin, t_clong usemax);
    MAX_API t_max_err attr_addfilter_clip_scale (void* attribute, double scale, double min, double max, t_clong usemin,
                                                 t_clong usemax); // scales, then clips

    // Objects.
    MAX_API void* object_alloc (t_class* c); // zeroed, with the head initialised; null on failure
    MAX_API t_max_err object_free (void* x); // null is ignored
    MAX_API t_symbol* object_classname (void* x);
    MAX_API t_class* object_class (void* x);
    MAX_API void* object_method_imp (void* x, void* selector, void* p1, void* p2, void* p3, void* p4, void* p5,
                                     void* p6, void* p7, void* p8); // see object_method

    /** Notifies the clients of a registered object. */
    MAX_API t_max_err object_notify (void* x, t_symbol* message, void* data);
    MAX_API void* object_register (t_symbol* name_space, t_symbol* name, void* x);
    MAX_API t_max_err object_unregister (void* x);
    MAX_API t_max_err object_attach_byptr (void* x, void* client);
    MAX_API t_max_err object_detach_byptr (void* x, void* client);

    /** Stores an object under a key; freed with the instance. "#B" is the box, "#P" the patcher. */
    MAX_API t_max_err object_obex_store (void* x, t_symbol* key, t_object* value);
    MAX_API t_max_err object_obex_lookup (void* x, t_symbol* key, t_object** value);

    // Attributes of an instance, or properties when x is an attribute.
    MAX_API void* object_attr_get (void* x, t_symbol* name);                             // borrowed, or null
    MAX_API t_max_err object_attr_getnames (void* x, t_clong* count, t_symbol*** names); // free with sysmem_freeptr

    /** Pass *ac 0 and *av null and free with sysmem_freeptr; otherwise it uses the caller's memory. */
    MAX_API t_max_err object_attr_getvalueof (void* x, t_symbol* name, t_clong* ac, t_atom** av);
    MAX_API t_max_err object_attr_setvalueof (void* x, t_symbol* name, t_clong ac, t_atom* av);
    MAX_API t_max_err object_attr_touch (t_object* x, t_symbol* name); // notifies without setting
    MAX_API t_clong object_attr_usercanget (void* x, t_symbol* name);
    MAX_API t_clong object_attr_usercanset (void* x, t_symbol* name);

    // The `@` words of a box.
    MAX_API t_dictionary* object_dictionaryarg (t_clong ac, t_atom* av);   // borrowed, or null
    MAX_API void attr_dictionary_process (void* x, t_dictionary* d);       // sets each key that is an attribute
    MAX_API void attr_dictionary_check (void* x, t_dictionary* d);         // logs an error for every other key
    MAX_API void attr_args_process (void* x, std::int16_t ac, t_atom* av); // for classes without a dictionary
    MAX_API t_clong attr_args_offset (std::int16_t ac, t_atom* av);        // the number of words before the first `@`
}
