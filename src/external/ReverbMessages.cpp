#include "external/ReverbMessages.h"

#include "external/DeferredMessages.h"
#include "external/FilterMessage.h"
#include "external/ReverbParameters.h"

using orvanemax::Atoms;
using orvanemax::symbols;

namespace halcyra
{
namespace
{

/** `early start 20`: forwards the number to the parameter with that key in the group. */
bool forwardKeyed (t_halcyra_control* x, t_symbol* group, Atoms atoms)
{
    if (! atoms.fit ("sn"))
        return false;
    const auto* key = atoms.symbol (0);
    for (const auto& mirror : reverbMirrors) {
        const auto& words = reverbWords (mirror.number);
        if (words.selector == group && words.key == key) {
            halcyra_control_defer_msg (x, words.attribute, 1, &atoms[1]);
            return true;
        }
    }
    return false;
}

/** Parses the atoms only to report a bad list: the result depends on the state when the handler runs. */
bool forwardFilter (t_halcyra_control* x, t_symbol* selector, Atoms atoms)
{
    HLShelfParameters unused;
    if (! parseFilter (unused, atoms))
        return false;
    halcyra_control_defer_msg (x, selector, static_cast<t_clong> (atoms.size()), atoms.begin());
    return true;
}

void filterMessage (t_halcyra_control* x, const FilterMirror& filter, bool hasKeys, Atoms atoms)
{
    auto* selector = orvanemax::symbol (filter.selector);
    if (! (hasKeys && forwardKeyed (x, selector, atoms)) && ! forwardFilter (x, selector, atoms))
        orvanemax::invalidMessage (x, filter.complaint, atoms);
}

}
}

using namespace halcyra;

void halcyra_control_direct (t_halcyra_control* x, t_symbol*, t_clong argc, t_atom* argv)
{
    filterMessage (x, filterMirrors[0], false, Atoms (argc, argv));
}

void halcyra_control_room (t_halcyra_control* x, t_symbol*, t_clong argc, t_atom* argv)
{
    filterMessage (x, filterMirrors[1], false, Atoms (argc, argv));
}

void halcyra_control_early (t_halcyra_control* x, t_symbol*, t_clong argc, t_atom* argv)
{
    filterMessage (x, filterMirrors[2], true, Atoms (argc, argv));
}

void halcyra_control_cluster (t_halcyra_control* x, t_symbol*, t_clong argc, t_atom* argv)
{
    filterMessage (x, filterMirrors[3], true, Atoms (argc, argv));
}

void halcyra_control_reverb (t_halcyra_control* x, t_symbol*, t_clong argc, t_atom* argv)
{
    const Atoms atoms (argc, argv);
    if (! forwardKeyed (x, symbols().reverb, atoms))
        orvanemax::invalidMessage (x, "invalid message : reverb", atoms);
}

void halcyra_control_roomsize (t_halcyra_control* x, t_symbol*, t_clong argc, t_atom* argv)
{
    const Atoms atoms (argc, argv);
    if (! atoms.fit ("f"))
        return orvanemax::invalidMessage (x, "invalid message : roomsize", atoms);
    // Passes all: the handler rejects more than one with a message of its own.
    halcyra_control_defer_msg (x, symbols().roomsize, static_cast<t_clong> (atoms.size()), atoms.begin());
}

void halcyra_control_bang (t_halcyra_control* x) { halcyra_control_defer_msg (x, symbols().bang, 0, nullptr); }
void halcyra_control_reset (t_halcyra_control* x) { halcyra_control_defer_msg (x, symbols().reset, 0, nullptr); }
