#include "ExampleClass.h"
#include <atomic>

namespace
{
t_class* exampleClass = nullptr;
std::atomic<int> freed{ 0 };

void* example_new (t_symbol*, t_clong argc, t_atom* argv)
{
    auto* x = static_cast<t_example*> (object_alloc (exampleClass));
    x->word = gensym ("");
    x->guard = x->seriesGuard = 77;
    auto* d = object_dictionaryarg (argc, argv);
    if (d == nullptr)
        return nullptr;
    if (dictionary_hasentry (d, gensym ("refuse")) != 0)
        return nullptr;
    x->dump = outlet_new (x, nullptr);
    object_obex_store (x, gensym ("dumpout"), static_cast<t_object*> (x->dump));
    x->out = outlet_new (x, nullptr);
    attr_dictionary_check (x, d);
    attr_dictionary_process (x, d);
    return x;
}

void example_free (t_example* x)
{
    qelem_free (x->queueElement);
    ++freed;
}

void example_assist (t_example*, void*, t_clong io, t_clong index, char* text)
{
    strncpy_zero (text, io == ASSIST_INLET ? "in" : index == 0 ? "out" : "dump", MAX_ASSIST_CHARS);
}

void example_bang (t_example* x) { outlet_bang (static_cast<t_outlet*> (x->out)); }

void example_int (t_example* x, t_atom_long value) { outlet_int (static_cast<t_outlet*> (x->out), value); }

void example_echo (t_example* x, t_symbol* selector, t_clong argc, t_atom* argv)
{
    x->lastCount = argc;
    outlet_anything (static_cast<t_outlet*> (x->out), selector, static_cast<std::int16_t> (argc), argv);
}

void example_symbol (t_example* x, t_symbol* text)
{
    t_atom atom;
    atom_setsym (&atom, text);
    outlet_anything (static_cast<t_outlet*> (x->out), gensym ("got"), 1, &atom);
}

void example_mixed (t_example* x, double f, t_atom_long i, t_symbol* s, double g, t_atom_long j, double h,
                    t_atom_long k)
{
    t_atom atoms[7];
    atom_setfloat (atoms, f);
    atom_setlong (atoms + 1, i);
    atom_setsym (atoms + 2, s);
    atom_setfloat (atoms + 3, g);
    atom_setlong (atoms + 4, j);
    atom_setfloat (atoms + 5, h);
    atom_setlong (atoms + 6, k);
    outlet_anything (static_cast<t_outlet*> (x->out), gensym ("mixed"), 7, atoms);
}

void example_later (t_example* x, t_symbol* selector, std::int16_t argc, t_atom* argv)
{
    x->ranOnMain = systhread_ismainthread();
    x->lastCount = argc;
    outlet_anything (static_cast<t_outlet*> (x->out), selector, argc, argv);
}

void example_defer (t_example* x, t_symbol*, t_clong argc, t_atom* argv)
{
    defer (x, max_method (example_later), gensym ("defer"), static_cast<std::int16_t> (argc), argv);
}

void example_medium (t_example* x, t_symbol*, t_clong argc, t_atom* argv)
{
    defer_medium (x, max_method (example_later), gensym ("medium"), static_cast<std::int16_t> (argc), argv);
}

void example_low (t_example* x, t_symbol*, t_clong argc, t_atom* argv)
{
    defer_low (x, max_method (example_later), gensym ("low"), static_cast<std::int16_t> (argc), argv);
}

void example_delay (t_example* x, t_atom_long milliseconds)
{
    schedule_defer (x, max_method (example_later), static_cast<t_clong> (milliseconds), gensym ("delayed"), 0, nullptr);
}

void example_tick (t_example* x) { outlet_anything (static_cast<t_outlet*> (x->out), gensym ("tick"), 0, nullptr); }

void example_qelem (t_example* x)
{
    if (x->queueElement == nullptr)
        x->queueElement = qelem_new (x, max_method (example_tick));
    qelem_set (x->queueElement);
}

void example_post (t_example* x, t_symbol*, t_clong argc, t_atom*)
{
    object_post (&x->ob, "%d atoms", argc);
    object_warn (&x->ob, "careful");
    object_error (&x->ob, "wrong");
    object_bug (nullptr, "two\nlines");
}

void example_dictionary (t_example* x)
{
    t_atom atoms[2];
    atom_setlong (atoms, 1);
    atom_setfloat (atoms + 1, 2.5);
    auto* d = dictionary_new();
    dictionary_appendsym (d, gensym ("who"), gensym ("a b"));
    dictionary_appendatoms (d, gensym ("pair"), 2, atoms);
    t_symbol* name = gensym ("exampledict");
    d = dictobj_register (d, &name);
    t_atom argument;
    atom_setsym (&argument, name);
    outlet_anything (static_cast<t_outlet*> (x->dump), gensym ("dictionary"), 1, &argument);
    object_free (d);
}

t_max_err example_setcustom (t_example* x, void*, t_clong ac, t_atom* av)
{
    x->lastCount = ac;
    if (ac > 0)
        x->custom = static_cast<t_clong> (atom_getlong (av));
    return MAX_ERR_NONE;
}

t_max_err example_getcustom (t_example* x, void*, t_clong* ac, t_atom** av)
{
    char alloc = 0;
    atom_alloc_array (1, ac, av, &alloc);
    atom_setlong (*av, x->custom * 10);
    return MAX_ERR_NONE;
}

t_max_err example_getvalueof (t_example* x, t_clong* ac, t_atom** av)
{
    char alloc = 0;
    atom_alloc_array (1, ac, av, &alloc);
    return atom_setlong (*av, x->count);
}

t_max_err example_setvalueof (t_example* x, t_clong ac, t_atom* av)
{
    if (ac != 1)
        return MAX_ERR_GENERIC;
    x->count = static_cast<t_clong> (atom_getlong (av));
    return object_notify (x, gensym ("modified"), nullptr);
}

void example_preset (t_example* x)
{
    t_atom atoms[4];
    atom_setobj (atoms, x);
    atom_setsym (atoms + 1, object_classname (x));
    atom_setsym (atoms + 2, gensym ("count"));
    atom_setlong (atoms + 3, x->count);
    if (auto* binbuf = gensym ("_preset")->s_thing)
        binbuf_insert (binbuf, nullptr, 4, atoms);
}

void addMethods (t_class* c)
{
    class_addmethod (c, max_method (example_assist), "assist", A_CANT, 0);
    class_addmethod (c, max_method (example_bang), "bang", 0);
    class_addmethod (c, max_method (example_int), "int", A_LONG, 0);
    class_addmethod (c, max_method (example_echo), "list", A_GIMME, 0);
    class_addmethod (c, max_method (example_echo), "echo", A_GIMME, 0);
    class_addmethod (c, max_method (example_symbol), "say", A_SYM, 0);
    class_addmethod (c, max_method (example_mixed), "mixed", A_FLOAT, A_LONG, A_SYM, A_DEFFLOAT, A_DEFLONG, A_DEFFLOAT,
                     A_DEFLONG, 0);
    class_addmethod (c, max_method (example_defer), "defer", A_GIMME, 0);
    class_addmethod (c, max_method (example_medium), "medium", A_GIMME, 0);
    class_addmethod (c, max_method (example_low), "low", A_GIMME, 0);
    class_addmethod (c, max_method (example_delay), "delay", A_LONG, 0);
    class_addmethod (c, max_method (example_qelem), "qelem", 0);
    class_addmethod (c, max_method (example_post), "post", A_GIMME, 0);
    class_addmethod (c, max_method (example_dictionary), "dictionary", 0);
    class_addmethod (c, max_method (example_getvalueof), "getvalueof", A_CANT, 0);
    class_addmethod (c, max_method (example_setvalueof), "setvalueof", A_CANT, 0);
    class_addmethod (c, max_method (example_preset), "preset", 0);
    class_addmethod (c, max_method (example_bang), "twice", A_SYM, 0);
    class_addmethod (c, max_method (example_echo), "twice", A_GIMME, 0); // the later one is called
    class_addmethod (c, max_method (example_echo), "level", A_GIMME, 0); // also the name of an attribute
}

void addAttribute (t_class* c, const char* name, const char* type, t_clong offset, const char* preset, int flags = 0)
{
    class_addattr (c, attr_offset_new (name, gensym (type), flags, nullptr, nullptr, offset));
    if (preset != nullptr)
        class_attr_addattr_parse (c, name, "default", gensym (type), 0, preset);
}

void addAttributes (t_class* c)
{
    addAttribute (c, "count", "long", calcoffset (t_example, count), "6");
    attr_addfilter_clip (class_attr_get (c, gensym ("count")), 1, 64, 1, 1);
    addAttribute (c, "level", "float32", calcoffset (t_example, level), "22.22");
    attr_addfilter_clip (class_attr_get (c, gensym ("level")), 0, 300, 0, 1);
    addAttribute (c, "fine", "float64", calcoffset (t_example, fine), nullptr);
    addAttribute (c, "flag", "char", calcoffset (t_example, flag), nullptr);
    addAttribute (c, "word", "symbol", calcoffset (t_example, word), "start");
    class_addattr (
        c, attr_offset_array_new ("pair", gensym ("float32"), 2, 0, nullptr, nullptr, 0, calcoffset (t_example, pair)));
    class_attr_addattr_parse (c, "pair", "default", gensym ("float32"), 0, "50 800");
    class_addattr (c, attr_offset_array_new ("series", gensym ("float32"), 4, 0, nullptr, nullptr,
                                             calcoffset (t_example, seriesCount), calcoffset (t_example, series)));
    class_addattr (c, attr_offset_new ("custom", gensym ("long"), ATTR_SET_DEFER_LOW, max_method (example_getcustom),
                                       nullptr, calcoffset (t_example, custom)));
    auto* custom = class_attr_get (c, gensym ("custom"));
    object_method (custom, gensym ("setmethod"), gensym ("set"), max_method (example_setcustom));
    attr_addfilter_clip (custom, 0, 100, 1, 1);
    addAttribute (c, "quiet", "long", calcoffset (t_example, guard), nullptr,
                  ATTR_GET_OPAQUE_USER | ATTR_SET_OPAQUE_USER);
    class_attr_addattr_parse (c, "count", "enumvals", gensym ("atom"), 0, "1 two \"three four\" 5.");
    class_attr_addattr_format (c, "count", "label", gensym ("symbol"), 0, "s", gensym_tr ("how many"));
    class_attr_addattr_format (c, "count", "everything", gensym ("atom"), 0, "lfs", t_atom_long{ 1 }, 2.5,
                               gensym ("x"));
    const float values[] = { 1.5F, 2.5F };
    class_attr_addattr_format (c, "count", "array", gensym ("float32"), 0, "F", 2, values);
}
}

t_clong example_main (void*)
{
    exampleClass = class_new ("bench.example", max_method (example_new), max_method (example_free), sizeof (t_example),
                              nullptr, A_GIMME, 0);
    exampleClass->c_flags |= CLASS_FLAG_NEWDICTIONARY;
    addMethods (exampleClass);
    addAttributes (exampleClass);
    class_register (CLASS_BOX, exampleClass);
    return 0;
}

int exampleObjectsFreed() { return freed; }
