#pragma once
#include "external/ViewerAttributes.h"
#include "gui/plane/PlaneComponent.h"
#include "max/ObjectCall.h"

#include <algorithm>
#include <functional>

/** Setters for the viewer's attributes, by type. Invalid values are ignored. Each sets through a function of the plane,
    or a function of plane and value. */
namespace halcyra::setters
{

using orvanemax::Atoms;
using orvanemax::AttributeRow;

/** The row's field in the struct. */
template <typename Value>
[[nodiscard]] Value& field (t_halcyra_control* x, const AttributeRow& row) noexcept
{
    return *reinterpret_cast<Value*> (reinterpret_cast<char*> (x) + row.offset);
}

/** Sets a switch of the plane. */
template <auto set>
bool onOff (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (atoms.fit ("l")) {
        const bool on = atoms.integer (0) != 0;
        field<t_atom_long> (x, row) = on ? 1 : 0;
        std::invoke (set, *x->plane, on);
    }
    return true;
}

/** Sets a number of the plane. */
template <auto set>
bool number (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (atoms.fit ("n")) {
        field<float> (x, row) = atoms.number (0);
        std::invoke (set, *x->plane, atoms.number (0));
    }
    return true;
}

/** Sets a count of the plane; the attribute's filter limits it. */
template <auto set>
bool count (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (atoms.fit ("n")) {
        const auto value = std::clamp<t_atom_long> (atoms.integer (0), static_cast<t_atom_long> (row.low),
                                                    static_cast<t_atom_long> (row.high));
        field<t_atom_long> (x, row) = value;
        std::invoke (set, *x->plane, static_cast<std::uint32_t> (value));
    }
    return true;
}

/** Whether the word is one of an enumeration's choices. */
[[nodiscard]] bool isChoice (const AttributeRow& row, const t_symbol* word) noexcept;

/** Logs a word that is not among the choices; nothing is stored. */
void refuse (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);

/** Sets an enumeration of the plane. */
template <auto set>
bool word (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (! atoms.fit ("s"))
        return true;
    if (! isChoice (row, atoms.symbol (0))) {
        refuse (x, row, atoms);
        return false;
    }
    field<t_symbol*> (x, row) = atoms.symbol (0);
    std::invoke (set, *x->plane, atoms.symbol (0)->s_name);
    return true;
}

/** Sets a colour of the plane. Missing or non-numeric components are 0; if any is NaN or infinite the colour is
    ignored. */
template <auto set>
bool colour (t_halcyra_control* x, const AttributeRow& row, Atoms atoms)
{
    if (atoms.empty() || std::any_of (atoms.begin(), atoms.end(), orvanemax::isBadFloat))
        return true;
    auto* rgba = &field<double> (x, row);
    for (std::size_t i = 0; i < 4; ++i)
        rgba[i] = i < atoms.size() && orvanemax::isNumber (atoms[i]) ? atom_getfloat (&atoms[i]) : 0.0;
    const auto narrow = [rgba] (int i) { return static_cast<float> (rgba[i]); };
    std::invoke (set, *x->plane, narrow (0), narrow (1), narrow (2), narrow (3));
    return true;
}

/** Sets a per-source property by scene updates; the row must be one of the scene's properties. */
bool eachSource (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);

// Setters for single attributes.
bool keep (t_halcyra_control* x, const AttributeRow& row, Atoms atoms); // a switch that the plane does not have
bool radiusConstraint (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool gridMode (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool showViewer (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool zoomLock (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool frameOption (t_halcyra_control* x, const AttributeRow& row, Atoms atoms); // showfps, useopengl
bool format (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool sourcesPositions (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool speakersPositions (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool listenerPosition (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool listenerAngle (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool sourcesLevels (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool speakersLevels (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool shoeboxCorners (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);
bool backgroundImage (t_halcyra_control* x, const AttributeRow& row, Atoms atoms);

}
