#include "host/pd/Pd.h"

namespace pdhost
{

Values valuesOf (int count, const t_atom* atoms)
{
    Values values;
    values.reserve (static_cast<std::size_t> (count));
    for (int i = 0; i < count; ++i) {
        if (atoms[i].a_type == A_FLOAT)
            values.push_back ({ nullptr, static_cast<double> (atoms[i].a_w.w_float) });
        else if (atoms[i].a_type == A_SYMBOL)
            values.push_back ({ atoms[i].a_w.w_symbol->s_name, 0 });
    }
    return values;
}

t_atom atomOf (const Value& value)
{
    t_atom atom;
    if (value.word != nullptr)
        SETSYMBOL (&atom, gensym (value.word));
    else
        SETFLOAT (&atom, static_cast<t_float> (value.number));
    return atom;
}

std::vector<t_atom> atomsOf (const Values& values)
{
    std::vector<t_atom> atoms;
    atoms.reserve (values.size());
    for (const auto& value : values)
        atoms.push_back (atomOf (value));
    return atoms;
}

}
