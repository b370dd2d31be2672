#include "external/ControlAttributes.h"

#include "external/DeferredMessages.h"
#include "external/ReverbParameters.h"
#include "max/Atoms.h"
#include "max/MainThread.h"
#include "max/MaxAttribute.h"
#include "max/MaxMspJuceWindowManager.h"
#include "max/Modified.h"
#include "max/OrvanemaxSymbols.h"

#include <algorithm>
#include <cstdlib>

namespace halcyra
{
namespace
{

using namespace orvanemax;

constexpr double lowest (HalcyraReverbParameter number) { return parameterRow (number)->range.lowest; }
constexpr double highest (HalcyraReverbParameter number) { return parameterRow (number)->range.highest; }
constexpr const char* defaultOf (HalcyraReverbParameter number) { return parameterRow (number)->defaultText; }

/** A parameter's attribute whose limits differ from the parameter's. */
constexpr AttributeRow unfiltered (AttributeField field, HalcyraReverbParameter parameter, const char* label)
{
    return number (field, defaultOf (parameter), label);
}

/** A parameter's attribute, with the parameter's limits. */
constexpr AttributeRow reverbNumber (AttributeField field, HalcyraReverbParameter parameter, const char* label)
{
    return unfiltered (field, parameter, label).within (lowest (parameter), highest (parameter));
}

// clang-format off
constexpr ControlAttribute table[] = {
    { integer (HALCYRA_FIELD (numsources), "6", "number of sources").within (1, 64).ordered (1).notReset(), nullptr },
    { integer (HALCYRA_FIELD (numspeakers), "6", "number of speakers").within (1, 64).ordered (2).notReset(), nullptr },
    { integer (HALCYRA_FIELD (numinternals), "8", "number of internal channels for FDN").within (2, 16).notReset(), nullptr },
    { number (HALCYRA_FIELD (direct), filterDefaultText.data(), "direct filter").array (6).ordered (3), "filters" },
    { number (HALCYRA_FIELD (room), filterDefaultText.data(), "room filter").array (6).ordered (4), "filters" },
    { number (HALCYRA_FIELD (early), filterDefaultText.data(), "early filter").array (6).ordered (5), "filters" },
    { number (HALCYRA_FIELD (cluster), filterDefaultText.data(), "cluster filter").array (6).ordered (6), "filters" },
    { reverbNumber (HALCYRA_FIELD (gain), parameter::gain, "late reverberation gain (dB)").ordered (20), "reverb" },
    { reverbNumber (HALCYRA_FIELD (tr0), parameter::tr0, "decay time (s)").ordered (21), "reverb" },
    { reverbNumber (HALCYRA_FIELD (trl), parameter::trl, "relative decay time at low freq").ordered (22), "reverb" },
    { reverbNumber (HALCYRA_FIELD (trm), parameter::trm, "relative decay time at med freq").ordered (23), "reverb" },
    { reverbNumber (HALCYRA_FIELD (trh), parameter::trh, "relative decay time at high freq").ordered (24), "reverb" },
    { reverbNumber (HALCYRA_FIELD (fl), parameter::fl, "low/med crossover frequency"), "reverb" },
    { reverbNumber (HALCYRA_FIELD (fh), parameter::fh, "med/high crossover frequency"), "reverb" },
    { reverbNumber (HALCYRA_FIELD (early_start), parameter::earlyStart, "early start").ordered (7), "reverb" },
    { unfiltered (HALCYRA_FIELD (early_end), parameter::earlyEnd, "early end").within (0, highest (parameter::earlyEnd)).ordered (8), "reverb" },
    { reverbNumber (HALCYRA_FIELD (early_distr), parameter::earlyDistr, "early distr").ordered (9), "reverb" },
    { reverbNumber (HALCYRA_FIELD (early_shape), parameter::earlyShape, "early shape").ordered (10), "reverb" },
    { reverbNumber (HALCYRA_FIELD (early_width), parameter::earlyWidth, "early width").ordered (11), "reverb" },
    { unfiltered (HALCYRA_FIELD (cluster_start), parameter::clusterStart, "cluster start").atMost (highest (parameter::clusterStart)).ordered (12), "reverb" },
    { unfiltered (HALCYRA_FIELD (cluster_end), parameter::clusterEnd, "cluster end").atMost (highest (parameter::clusterEnd)).ordered (13), "reverb" },
    { reverbNumber (HALCYRA_FIELD (cluster_distr), parameter::clusterDistr, "cluster distr").ordered (14), "reverb" },
    { unfiltered (HALCYRA_FIELD (reverb_start), parameter::reverbStart, "reverb start").clipped (lowest (parameter::reverbStart), highest (parameter::reverbStart)).ordered (15), "reverb" },
    { reverbNumber (HALCYRA_FIELD (modaldensity), parameter::modalDensity, "reverb modal density").ordered (16), "reverb" },
    { onOff (HALCYRA_FIELD (roomairabsorption), defaultOf (parameter::air), "room air absorption").ordered (17), "reverb" },
    { onOff (HALCYRA_FIELD (infinite), defaultOf (parameter::infinite), "infinite reverb").ordered (18), "reverb" },
    { reverbNumber (HALCYRA_FIELD (roomairrolloff), parameter::airFrequency, "room air absorption rolloff").ordered (19), "reverb" },
    { onOff (HALCYRA_FIELD (windowmoveable), "1", "window moveable"), "window options" },
    { number (HALCYRA_FIELD (windowtopleft), "50 800", "window top left corner").array (2).in ("px"), "window options" },
    { symbolic (HALCYRA_FIELD (windowtitle), "Halcyra", "window title").ordered (25).notReset(), "window options" },
};
// clang-format on

/** A size of the object: set at creation, afterwards only compared. */
struct SizeRow
{
    SymbolField name;
    t_atom_long t_halcyra_control::*value;
    bool notifies;
    const char* complaint;
};

constexpr SizeRow sizes[] = {
    { &Words::numsources, &Control::numsources, true, "could not dynamically change number of sources" },
    { &Words::numspeakers, &Control::numspeakers, true, "could not dynamically change number of speakers" },
    { &Words::numinternals, &Control::numinternals, false, "could not dynamically change number of internal channels" },
};

const AttributeRow& rowOf (SymbolField name)
{
    return std::find_if (std::begin (table), std::end (table),
                         [&] (const ControlAttribute& a) { return gensym (a.row.name) == symbol (name); })
        ->row;
}

/** Clamps again: the struct's array sizes must not depend on the attribute's filter. */
void storeSize (t_halcyra_control* x, const SizeRow& size, t_atom_long wish)
{
    const auto& row = rowOf (size.name);
    x->*size.value = std::clamp (wish, static_cast<t_atom_long> (row.low), static_cast<t_atom_long> (row.high));
    x->sourcespositionssize = static_cast<std::int32_t> (3 * x->numsources);
    x->speakerspositionssize = static_cast<std::int32_t> (3 * x->numspeakers);
    x->sourcecolorsize = 4 * x->numsources;
}

void setSize (t_halcyra_control* x, const SizeRow& size, Atoms atoms)
{
    if (x->constructed) {
        if (atoms.integer (0) != x->*size.value)
            tellError (x, size.complaint);
        return;
    }
    if (! atoms.fit ("n"))
        return;
    storeSize (x, size, atoms.integer (0));
    if (size.notifies)
        notifyModified (x);
}

/** Two values: non-numeric ones are 0; if any is NaN or infinite both are ignored. */
void setTopLeft (t_halcyra_control* x, Atoms atoms)
{
    if (std::any_of (atoms.begin(), atoms.end(), isBadFloat))
        return;
    x->windowtopleft[0] = atoms.number (0);
    x->windowtopleft[1] = atoms.number (1);
    x->window->setTopLeft (x->windowtopleft);
}

/** Runs on the main thread; the name selects the window attribute. */
void setWindowOption (t_halcyra_control* x, t_symbol* name, short argc, t_atom* argv)
{
    const Atoms atoms (argc, argv);
    if (name == symbols().windowtitle && atoms.fit ("s")) {
        x->windowtitle = atoms.symbol (0);
        x->window->setTitle (x->windowtitle->s_name);
    } else if (name == symbols().windowtopleft) {
        setTopLeft (x, atoms);
    } else if (name == symbols().windowmoveable && atoms.fit ("n")) {
        x->windowmoveable = atoms.number (0) != 0 ? 1 : 0;
        x->window->setMoveable (x->windowmoveable != 0);
    } else {
        return;
    }
    notifyModified (x);
}

bool isWindowOption (t_symbol* name) noexcept
{
    return name == symbols().windowtitle || name == symbols().windowtopleft || name == symbols().windowmoveable;
}

bool isReverbValue (t_symbol* name) noexcept
{
    const auto isNamed = [name] (SymbolField field) { return symbol (field) == name; };
    return std::any_of (reverbMirrors.begin(), reverbMirrors.end(),
                        [&] (const ReverbMirror& row) { return isNamed (row.attribute); }) ||
           std::any_of (filterMirrors.begin(), filterMirrors.end(),
                        [&] (const FilterMirror& row) { return isNamed (row.selector); });
}

void setAttribute (t_halcyra_control* x, t_symbol* name, t_clong argc, t_atom* argv)
{
    for (const auto& size : sizes)
        if (symbol (size.name) == name)
            return setSize (x, size, Atoms (argc, argv));
    if (isReverbValue (name))
        return halcyra_control_defer_msg (x, name, argc, argv);
    if (! isWindowOption (name))
        return tellError (x, std::string ("unknown attribute ") + name->s_name);
    if (systhread_ismainthread())
        setWindowOption (x, name, deferrable (argc), argv);
    else
        runOnMainThread (x, hostFunction<setWindowOption>(), name, argc, argv);
}

}

orvanemax::Rows<ControlAttribute> controlAttributes() noexcept { return table; }

void fillControlDefaults (t_halcyra_control* x)
{
    for (const auto& size : sizes)
        storeSize (x, size, std::atoi (rowOf (size.name).defaultText));
    x->windowtitle = gensym (rowOf (&Words::windowtitle).defaultText);
}

}

t_max_err halcyra_control_set (t_halcyra_control* x, void* attribute, t_clong argc, t_atom* argv)
{
    if (argc > 0 && argv != nullptr)
        halcyra::setAttribute (x, MaxAttribute (static_cast<t_object*> (attribute)).name(), argc, argv);
    return MAX_ERR_NONE;
}
