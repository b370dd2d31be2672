#include "external/DeferredMessages.h"

#include "external/FilterMessage.h"
#include "external/ReverbParameters.h"
#include "gui/verb/HalcyraComponent.h"
#include "max/Atoms.h"
#include "max/MainThread.h"
#include "max/Modified.h"

#include <algorithm>

using orvanemax::Atoms;
using orvanemax::invalidMessage;

namespace halcyra
{
namespace
{

/** Handlers run on the main thread and receive the selector that matched. */
using DeferredHandler = orvanemax::HostFunction;
using orvanemax::hostFunction;

/** A symbol counts as 0; NaN and infinity are rejected. */
bool isOneValue (Atoms atoms) noexcept
{
    return atoms.size() == 1 && (atom_gettype (&atoms[0]) == A_SYM || orvanemax::isNumber (atoms[0]));
}

void setNumber (t_halcyra_control* x, t_symbol* selector, short argc, t_atom* argv)
{
    const Atoms atoms (argc, argv);
    const auto& mirror = *parameterNamed (selector);
    if (! isOneValue (atoms))
        return invalidMessage (x, mirror.complaint, atoms);
    x->component->setReverbParameter (mirror.number, atoms.number (0));
}

void setSwitch (t_halcyra_control* x, t_symbol* selector, short argc, t_atom* argv)
{
    const Atoms atoms (argc, argv);
    const auto& mirror = *parameterNamed (selector);
    if (! atoms.fit ("l"))
        return invalidMessage (x, mirror.complaint, atoms);
    x->component->setReverbParameter (mirror.number, atoms.integer (0) != 0 ? 1.0f : 0.0f);
}

void setRoomSize (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    const Atoms atoms (argc, argv);
    if (! isOneValue (atoms))
        return invalidMessage (x, "invalid message : room size", atoms);
    x->component->setRoomSize (atoms.number (0), juce::sendNotification);
}

/** Silently ignores an invalid filter: messages were validated before, attributes are not. */
void setFilter (t_halcyra_control* x, t_symbol* selector, short argc, t_atom* argv)
{
    const auto& mirror = *filterNamed (selector);
    const auto number = static_cast<HalcyraFilter> (&mirror - filterMirrors.data());
    auto filter = x->component->getFilter (number); // fields that the message does not set keep their value
    parseFilter (filter, Atoms (argc, argv));
    x->component->setFilter (number, filter, true);
    if (mirror.tellsOfMessages)
        orvanemax::notifyModified (x);
}

void resetAll (t_halcyra_control* x, t_symbol*, short, t_atom*) { x->component->resetAll(); }

void sendAll (t_halcyra_control* x, t_symbol*, short, t_atom*) { x->component->sendAllParameters(); }

/** Neither a parameter nor a filter. */
struct DeferredMessage
{
    SymbolField selector;
    DeferredHandler handler;
};

const DeferredMessage otherMessages[] = {
    { &Words::reset, hostFunction<resetAll>() },
    { &Words::bang, hostFunction<sendAll>() },
    { &Words::roomsize, hostFunction<setRoomSize>() },
};

/** Empty for an unknown selector. */
DeferredHandler handlerOf (t_symbol* selector) noexcept
{
    if (const auto* mirror = parameterNamed (selector))
        return mirror->flag != nullptr ? hostFunction<setSwitch>() : hostFunction<setNumber>();
    if (filterNamed (selector) != nullptr)
        return hostFunction<setFilter>();
    const auto* row =
        std::find_if (std::begin (otherMessages), std::end (otherMessages), [=] (const DeferredMessage& message) {
            return orvanemax::symbol (message.selector) == selector;
        });
    return row == std::end (otherMessages) ? DeferredHandler() : row->handler;
}

}
}

void halcyra_control_defer_msg (t_halcyra_control* x, t_symbol* selector, t_clong argc, const t_atom* argv)
{
    const auto handler = halcyra::handlerOf (selector);
    if (handler == nullptr)
        return object_bug (&x->object, "unknown halcyra_control_defer_msg %s", selector->s_name);
    orvanemax::runOnMainThread (x, handler, selector, argc, argv);
}
