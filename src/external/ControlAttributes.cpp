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
#include <vector>

namespace halcyra
{
namespace
{

using namespace orvanemax;

// clang-format off
constexpr ControlAttribute sizesAndFilters[] = {
    { integer (HALCYRA_FIELD (numsources), "6", "number of sources").within (1, 64).ordered (1).notReset(), nullptr },
    { integer (HALCYRA_FIELD (numspeakers), "6", "number of speakers").within (1, 64).ordered (2).notReset(), nullptr },
    { integer (HALCYRA_FIELD (numinternals), "8", "number of internal channels for FDN").within (2, 16).notReset(), nullptr },
    { number (HALCYRA_FIELD (direct), filterDefaultText.data(), "direct filter").array (6).ordered (3), "filters" },
    { number (HALCYRA_FIELD (room), filterDefaultText.data(), "room filter").array (6).ordered (4), "filters" },
    { number (HALCYRA_FIELD (early), filterDefaultText.data(), "early filter").array (6).ordered (5), "filters" },
    { number (HALCYRA_FIELD (cluster), filterDefaultText.data(), "cluster filter").array (6).ordered (6), "filters" },
};

constexpr ControlAttribute windowOptions[] = {
    { onOff (HALCYRA_FIELD (windowmoveable), "1", "window moveable"), "window options" },
    { number (HALCYRA_FIELD (windowtopleft), "50 800", "window top left corner").array (2).in ("px"), "window options" },
    { symbolic (HALCYRA_FIELD (windowtitle), "Halcyra", "window title").ordered (25).notReset(), "window options" },
};
// clang-format on

/** The reverb parameters' rows stand between these two. */
const auto& allRows()
{
    static const auto rows = [] {
        std::vector<ControlAttribute> all (std::begin (sizesAndFilters), std::end (sizesAndFilters));
        for (const auto& mirror : reverbMirrors)
            all.push_back ({ mirror.attribute, "reverb" });
        all.insert (all.end(), std::begin (windowOptions), std::end (windowOptions));
        return all;
    }();
    return rows;
}

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
    return std::find_if (allRows().begin(), allRows().end(),
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

void setAttribute (t_halcyra_control* x, t_symbol* name, t_clong argc, t_atom* argv)
{
    for (const auto& size : sizes)
        if (symbol (size.name) == name)
            return setSize (x, size, Atoms (argc, argv));
    if (parameterNamed (name) != nullptr || filterNamed (name) != nullptr)
        return halcyra_control_defer_msg (x, name, argc, argv);
    if (! isWindowOption (name))
        return tellError (x, std::string ("unknown attribute ") + name->s_name);
    if (systhread_ismainthread())
        setWindowOption (x, name, deferrable (argc), argv);
    else
        runOnMainThread (x, hostFunction<setWindowOption>(), name, argc, argv);
}

}

orvanemax::Rows<ControlAttribute> controlAttributes() { return { allRows().data(), allRows().size() }; }

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
