#include "host/pd/SavedState.h"
#include <cstdio>
#include <cstdlib>

namespace pdhost
{

namespace
{
/** Pd writes numbers with six digits. It writes symbols verbatim and reads one that looks like a number as a number, so
    longer numbers are saved as symbols. */
t_atom savedAtomOf (const Value& value)
{
    if (value.word != nullptr)
        return atomOf (value);
    const auto number = static_cast<float> (value.number);
    char text[32];
    std::snprintf (text, sizeof text, "%g", static_cast<double> (number));
    if (std::strtof (text, nullptr) == number)
        return atomOf (value);
    std::snprintf (text, sizeof text, "%.9g", static_cast<double> (number));
    return atomOf ({ text, 0 });
}

void writeLine (t_binbuf* buffer, const NamedValues& change)
{
    binbuf_addv (buffer, "sss", recordSymbol(), gensym ("saved"), gensym (change.name.c_str()));
    for (const auto& value : change.values) {
        auto atom = savedAtomOf (value);
        binbuf_add (buffer, 1, &atom);
    }
    binbuf_addsemi (buffer);
}
}

t_symbol* recordSymbol() { return gensym ("#A"); }

void writeState (const std::vector<NamedValues>& changes, t_binbuf* buffer)
{
    for (const auto& change : changes)
        writeLine (buffer, change);
    if (! changes.empty())
        binbuf_addv (buffer, "ss;", recordSymbol(), gensym ("saved"));
}

}
