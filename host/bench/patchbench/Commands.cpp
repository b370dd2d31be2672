#include "host/bench/patchbench/Commands.h"
#include <cstring>

namespace patchbench
{

namespace
{
constexpr const std::vector<Command>& (*tables[])() = { patchCommands, inspectionCommands, windowCommands,
                                                        helpCommands };
}

std::vector<Command> allCommands()
{
    std::vector<Command> all;
    for (auto* table : tables)
        all.insert (all.end(), table().begin(), table().end());
    return all;
}

const Command* findCommand (const std::string& verb)
{
    for (auto* table : tables)
        for (const auto& command : table())
            if (verb == command.verb)
                return &command;
    return nullptr;
}

long long wholeNumber (const bench::Word& word, const char* what)
{
    const auto atom = bench::atomOf (word);
    if (atom.a_type != A_LONG)
        throw CommandError (std::string (what) + " is no whole number: \"" + word.text + "\"");
    return atom_getlong (&atom);
}

double number (const bench::Word& word, const char* what)
{
    const auto atom = bench::atomOf (word);
    if (atom.a_type != A_LONG && atom.a_type != A_FLOAT)
        throw CommandError (std::string (what) + " is no number: \"" + word.text + "\"");
    return atom_getfloat (&atom);
}

}
