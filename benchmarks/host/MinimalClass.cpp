#include "MinimalClass.h"

namespace
{
struct t_minimal
{
    t_object ob;
    void* out;
    float level;
};

t_class* minimalClass = nullptr;

void* minimal_new (t_symbol*, t_clong, t_atom*)
{
    auto* x = static_cast<t_minimal*> (object_alloc (minimalClass));
    x->out = outlet_new (x, nullptr);
    return x;
}

void minimal_send (t_minimal* x, t_symbol*, std::int16_t argc, t_atom* argv)
{
    if (argc != 1)
        return;
    x->level = static_cast<float> (atom_getfloat (argv));
    t_atom atoms[2];
    atom_setsym (atoms, gensym ("gain"));
    atom_setfloat (atoms + 1, static_cast<double> (x->level));
    outlet_anything (static_cast<t_outlet*> (x->out), gensym ("reverb"), 2, atoms);
}

void minimal_gain (t_minimal* x, t_symbol*, t_clong argc, t_atom* argv)
{
    defer_medium (x, max_method (minimal_send), nullptr, static_cast<std::int16_t> (argc), argv);
}

t_max_err minimal_setlevel (t_minimal* x, void*, t_clong argc, t_atom* argv)
{
    minimal_gain (x, nullptr, argc, argv);
    return MAX_ERR_NONE;
}
}

t_clong minimal_main (void*)
{
    minimalClass =
        class_new ("bench.minimal", max_method (minimal_new), nullptr, sizeof (t_minimal), nullptr, A_GIMME, 0);
    class_addmethod (minimalClass, max_method (minimal_gain), "gain", A_GIMME, 0);
    auto* level = attr_offset_new ("level", gensym ("float32"), 0, nullptr, max_method (minimal_setlevel),
                                   calcoffset (t_minimal, level));
    class_addattr (minimalClass, level);
    attr_addfilter_clip (level, -30, 30, 1, 1);
    class_register (CLASS_BOX, minimalClass);
    return 0;
}
