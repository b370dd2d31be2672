#include "external/MaxHalcyraListener.h"

#include "external/CoordinateMessages.h"
#include "external/FilterMessage.h"
#include "external/ReverbParameters.h"
#include "external/SceneMirror.h"
#include "external/ViewerOptions.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/verb/HalcyraComponent.h"
#include "max/Atoms.h"
#include "max/Guarded.h"
#include "max/MainThread.h"
#include "max/Modified.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{

using namespace halcyra;

/** Sends nothing before the object has its outlets. */
void sendOut (t_halcyra_control* x, t_symbol* selector, t_clong count, t_atom* atoms)
{
    if (x->outlet != nullptr)
        outlet_anything (static_cast<t_outlet*> (x->outlet), selector, orvanemax::deferrable (count), atoms);
}

/** Stores a value in its mirror; returns whether it changed. */
template <typename Value>
bool storeIfOther (Value& mirror, Value value) noexcept
{
    return std::exchange (mirror, value) != value;
}

/** Stores the component's value in its mirror and in the message's atom; switches are sent as longs. */
bool mirrorParameter (t_halcyra_control* x, const ReverbMirror& mirror, t_atom& atom)
{
    const auto value = x->component->reverbParameter (mirror.number);
    if (mirror.flag == nullptr) {
        atom_setfloat (&atom, static_cast<double> (value));
        return storeIfOther (x->*mirror.value, value);
    }
    const std::int32_t flag = value == 1.0f ? 1 : 0;
    atom_setlong (&atom, flag);
    return storeIfOther (x->*mirror.flag, flag);
}

}

MaxHalcyraListener::MaxHalcyraListener (t_halcyra_control* owner) : x (owner), component (owner->component)
{
    component->addListener (this);
}

MaxHalcyraListener::~MaxHalcyraListener() { component->removeListener (this); }

void MaxHalcyraListener::leaveOwner() { x = nullptr; }

template <typename Change>
void MaxHalcyraListener::tell (Change&& change)
{
    if (x == nullptr)
        return;
    orvanemax::guarded (x, [&change, owner = x] {
        change();
        orvanemax::notifyModified (owner);
    });
}

void MaxHalcyraListener::HalcyraSourceChanged (int sourceIndex)
{
    tell ([this, sourceIndex] { sendSource (sourceIndex); });
}

void MaxHalcyraListener::HalcyraSpeakersChanged()
{
    if (x != nullptr && x->numspeakers > 0)
        tell ([this] { sendSpeakers(); });
}

void MaxHalcyraListener::HalcyraReverbChanged (const HalcyraReverbParameter& parameter)
{
    tell ([this, &parameter] { sendParameter (parameter); });
}

void MaxHalcyraListener::HalcyraFilterChanged (const HalcyraFilter& filter)
{
    tell ([this, &filter] { sendFilter (filter); });
}

void MaxHalcyraListener::HalcyraViewerOptionsChanged()
{
    tell ([this] { mirrorViewerOptions (x); });
}

void MaxHalcyraListener::HalcyraCloseRequested()
{
    if (x != nullptr)
        orvanemax::guarded (x, [this] { object_method (x, orvanemax::symbols().wclose); });
}

void MaxHalcyraListener::sendSource (int sourceIndex)
{
    const auto position = x->component->getSourcePosition (sourceIndex);
    mirrorSourcePosition (x, static_cast<std::size_t> (sourceIndex));
    mirrorSourceYaw (x, static_cast<std::size_t> (sourceIndex)); // may follow the position
    std::array<t_atom, 2 + qel::maxCoordinateValues> atoms{};
    atom_setlong (&atoms[0], sourceIndex + 1);
    atom_setsym (&atoms[1], x->format);
    auto* end = &atoms[2];
    if (writeInFormat (x, position, end))
        sendOut (x, orvanemax::symbols().source, static_cast<t_clong> (end - atoms.data()), atoms.data());
}

void MaxHalcyraListener::sendSpeakers()
{
    mirrorSpeakers (x);
    qel::Point3Array positions;
    x->component->getSpeakerPositions (positions);
    std::array<t_atom, 1 + maxPositions> atoms{};
    atom_setsym (&atoms[0], x->format);
    auto* end = &atoms[1];
    bool written = true;
    for (const auto& position : positions)
        written = written && writeInFormat (x, position, end);
    if (written)
        sendOut (x, orvanemax::symbols().speakers, static_cast<t_clong> (end - atoms.data()), atoms.data());
}

void MaxHalcyraListener::sendParameter (HalcyraReverbParameter parameter)
{
    if (parameterRow (parameter) == nullptr)
        return orvanemax::tellError (x, "HalcyraReverbChanged : unknown parameter");
    const auto& words = reverbWords (parameter);
    const auto& mirror = reverbMirrors[static_cast<std::size_t> (parameter)];
    std::array<t_atom, 2> atoms{};
    atom_setsym (&atoms[0], words.key);
    if (mirrorParameter (x, mirror, atoms[1]))
        touchAttribute (x, words.attribute);
    sendOut (x, words.selector, 2, atoms.data());
}

void MaxHalcyraListener::sendFilter (HalcyraFilter filter)
{
    if (filter < 0 || filter >= static_cast<HalcyraFilter> (filterMirrors.size()))
        return;
    const auto& mirror = filterMirrors[static_cast<std::size_t> (filter)];
    const auto& present = x->component->getFilter (filter);
    auto& values = x->*mirror.values;
    std::array<float, 6> before{};
    std::copy (std::begin (values), std::end (values), before.begin());
    x->filters[filter] = present;
    copyFilter (present, values);
    std::array<t_atom, 6> atoms{};
    for (std::size_t i = 0; i < atoms.size(); ++i)
        atom_setfloat (&atoms[i], static_cast<double> (values[i]));
    if (! std::equal (before.begin(), before.end(), values))
        touchAttribute (x, orvanemax::symbol (mirror.selector));
    sendOut (x, orvanemax::symbol (mirror.selector), 6, atoms.data());
}
