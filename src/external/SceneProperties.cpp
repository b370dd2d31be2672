#include "external/SceneProperties.h"

#include "external/PerSourceStores.h"
#include "external/PointMirror.h"
#include "external/SceneMirror.h"
#include "gui/plane/PlaneComponent.h"
#include "max/Modified.h"
#include "max/OrvanemaxSymbols.h"

#include <algorithm>
#include <utility>

namespace halcyra::scene
{
namespace
{

using orvanemax::Atoms;
using orvanemax::symbols;
using Control = t_halcyra_control;
using Plane = lumo::PlaneComponent;
namespace rows = orvanemax;

qel::Point3 pointOf (Atoms values, std::size_t first = 0) noexcept
{
    return { values.number (first), values.number (first + 1), values.number (first + 2) };
}

/** A symbol, or a number as its digits. */
t_symbol* nameOf (Atoms values)
{
    return atom_gettype (&values[0]) == A_SYM ? values.symbol (0)
                                              : gensym (std::to_string (values.integer (0)).c_str());
}

bool isOn (Atoms values) noexcept { return values.number (0) != 0; }

/** Stores numbers of a per-source attribute and touches it if they changed. The atom arrays are null if their
    allocation failed. */
void storeNumbers (Control* x, Atoms values, t_atom* array, std::size_t index, t_symbol* attribute)
{
    if (array == nullptr)
        return;
    bool differ = false;
    {
        const std::lock_guard<std::mutex> lock (perSourceStores());
        for (std::size_t i = 0; i < values.size(); ++i) {
            const auto value = static_cast<double> (values.number (i));
            differ = differ || atom_getfloat (&array[index + i]) != value;
            atom_setfloat (&array[index + i], value);
        }
    }
    if (differ)
        touchAttribute (x, attribute);
}

void storeWord (Control* x, t_symbol*& stored, t_symbol* word, t_symbol* attribute)
{
    if (std::exchange (stored, word) != word)
        touchAttribute (x, attribute);
}

void aperture (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    plane.SetSourceAperture (i, values.number (0), notify);
    mirrorSourceAperture (x, i, values.number (0));
}

void yaw (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    plane.SetSourceYaw (i, values.number (0), notify);
    mirrorSourceYaw (x, i, values.number (0));
}

void radius (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    storeNumbers (x, values, x->radius, i, symbols().radius);
    plane.SetSourceRadius (i, values.number (0), notify);
}

void sourceName (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    auto* name = nameOf (values);
    storeWord (x, x->name[i], name, symbols().name);
    plane.SetSourceLabel (i, name->s_name, notify);
}

void orientationMode (Control* x, Plane& plane, std::size_t i, Atoms values, bool)
{
    storeWord (x, x->orientationmode[i], values.symbol (0), symbols().orientationmode);
    plane.SetSourceYawMode (i, qel::String (values.symbol (0)->s_name));
    mirrorSourceYaw (x, i);
}

bool isOrientationMode (const t_symbol* word)
{
    using namespace lumo::Plane::Orientation;
    return NameOf (ModeNamed (word->s_name)) == word->s_name;
}

void sourceColour (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    storeNumbers (x, values, x->sourcecolor, 4 * i, symbols().sourcecolor);
    plane.SetSourceColour (i, values.number (0), values.number (1), values.number (2), values.number (3), notify);
}

void lookAt (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    plane.SetSourceLookAt (i, pointOf (values), notify);
    mirrorSourceYaw (x, i);
}

void sourceVisible (Control*, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    plane.SetSourceVisible (i, isOn (values), notify);
}

void apertureVisible (Control*, Plane& plane, std::size_t i, Atoms values, bool)
{
    plane.SetSourceApertureVisible (i, values.integer (0) != 0);
}

void coordinatesVisible (Control*, Plane& plane, std::size_t i, Atoms values, bool)
{
    plane.SetSourceCoordinatesVisible (i, isOn (values));
}

constexpr rows::AttributeRow forEachSource (const rows::AttributeRow& row)
{
    return row.list (maxSources, calcoffset (t_halcyra_control, numsources));
}

// clang-format off
constexpr Property ofSources[] = {
    Property{ "aperture", "n", aperture }.saved().with (forEachSource (rows::number (HALCYRA_FIELD (aperture), "80", "sources aperture").within (10, 180).in ("deg"))),
    Property{ "yaw", "n", yaw }.saved().with (forEachSource (rows::number (HALCYRA_FIELD (yaw), "0", "source yaw").within (-180, 180).in ("deg"))),
    Property{ "radius", "n", radius }.saved().with (forEachSource (rows::number (HALCYRA_FIELD (radius), "1", "sources radius").within (0.2, 30).in ("m").notReset())),
    Property{ "name", "s", sourceName }.saved().with (forEachSource (rows::symbolic (HALCYRA_FIELD (name), nullptr, "source name"))),
    Property{ "name", "n", sourceName }.saved(),
    Property{ "orientationmode", "s", orientationMode }.saved().tested (isOrientationMode).with (forEachSource (rows::symbolic (HALCYRA_FIELD (orientationmode), "yawconstraint", "orientation mode"))),
    Property{ "color", "nnnn", sourceColour }.saved().with (rows::number (HALCYRA_FIELD (sourcecolor), nullptr, "source color").list (maxColours, calcoffset (t_halcyra_control, sourcecolorsize))),
    Property{ "lookat", "nnn", lookAt }.saved(),
    Property{ "visible", "n", sourceVisible },
    Property{ "showaperture", "n", apertureVisible }.direct(),
    Property{ "showcoordinates", "n", coordinatesVisible }.direct(),
};
// clang-format on

void speakerName (Control*, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    plane.SetSpeakerName (i, nameOf (values)->s_name, notify);
}

void speakerColour (Control*, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    plane.SetSpeakerColour (i, values.number (0), values.number (1), values.number (2), values.number (3), notify);
}

void speakerVisible (Control*, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    plane.SetSpeakerVisible (i, isOn (values), notify);
}

constexpr Property ofSpeakers[] = {
    { "name", "s", speakerName },
    { "name", "l", speakerName },
    { "color", "nnnn", speakerColour },
    { "visible", "n", speakerVisible },
};

void clearArea (Control*, Plane& plane, std::size_t i, Atoms, bool) { plane.ClearArea (i); }

void areaColour (Control*, Plane& plane, std::size_t i, Atoms values, bool)
{
    plane.SetAreaColour (
        i, juce::Colour::fromFloatRGBA (values.number (0), values.number (1), values.number (2), values.number (3)));
}

void areaName (Control*, Plane& plane, std::size_t i, Atoms values, bool)
{
    plane.SetAreaLabel (i, nameOf (values)->s_name);
}

void areaVisible (Control*, Plane& plane, std::size_t i, Atoms values, bool)
{
    plane.SetAreaVisible (i, isOn (values));
}

constexpr Property ofAreas[] = {
    Property{ "clear", "", clearArea }.direct(),      Property{ "color", "nnnn", areaColour }.direct(),
    Property{ "name", "s", areaName }.direct(),       Property{ "name", "l", areaName }.direct(),
    Property{ "visible", "n", areaVisible }.direct(),
};

void anchorName (Control*, Plane& plane, std::size_t i, Atoms values, bool)
{
    plane.SetAnchorName (i, nameOf (values)->s_name);
}

constexpr Property ofAnchors[] = {
    Property{ "name", "s", anchorName }.direct(),
    Property{ "name", "l", anchorName }.direct(),
};

template <float Control::*mirror>
void wishAngle (Control* x, std::size_t, Atoms values)
{
    x->*mirror = values.number (0);
}

template <void (Plane::*set) (float degrees, bool notify), float Control::*mirror, SymbolField attribute>
void listenerAngle (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    wishAngle<mirror> (x, i, values);
    (plane.*set) (x->*mirror, notify);
    mirrorListenerAngles (x);
    touchAttribute (x, orvanemax::symbol (attribute));
}

void wishRollPitchYaw (Control* x, std::size_t, Atoms values)
{
    x->listenerroll = values.number (0);
    x->listenerpitch = values.number (1);
    x->listeneryaw = values.number (2);
}

void listenerRollPitchYaw (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify)
{
    wishRollPitchYaw (x, i, values);
    plane.SetListenerOrientation (x->listeneryaw, x->listenerpitch, x->listenerroll, notify);
    mirrorListenerAngles (x);
    for (auto* attribute : { symbols().listeneryaw, symbols().listenerpitch, symbols().listenerroll })
        touchAttribute (x, attribute);
}

using Words = t_orvanemax_symbols;

// clang-format off
constexpr Property ofListener[] = {
    Property{ "yaw", "n", listenerAngle<&Plane::SetListenerYaw, &Control::listeneryaw, &Words::listeneryaw> }.saved().stored (wishAngle<&Control::listeneryaw>).with (rows::number (HALCYRA_FIELD (listeneryaw), "0", "listener yaw").in ("deg")),
    Property{ "pitch", "n", listenerAngle<&Plane::SetListenerPitch, &Control::listenerpitch, &Words::listenerpitch> }.saved().stored (wishAngle<&Control::listenerpitch>).with (rows::number (HALCYRA_FIELD (listenerpitch), "0", "listener pitch").in ("deg")),
    Property{ "roll", "n", listenerAngle<&Plane::SetListenerRoll, &Control::listenerroll, &Words::listenerroll> }.saved().stored (wishAngle<&Control::listenerroll>).with (rows::number (HALCYRA_FIELD (listenerroll), "0", "listener roll").in ("deg")),
    Property{ "rpy", "nnn", listenerRollPitchYaw }.saved().stored (wishRollPitchYaw),
};
// clang-format on

}

Properties sourceProperties() noexcept { return ofSources; }
Properties speakerProperties() noexcept { return ofSpeakers; }
Properties areaProperties() noexcept { return ofAreas; }
Properties anchorProperties() noexcept { return ofAnchors; }
Properties listenerProperties() noexcept { return ofListener; }

const Property& withAttribute (Properties properties, std::string_view attribute) noexcept
{
    return *std::find_if (properties.begin(), properties.end(), [attribute] (const Property& property) {
        return property.attribute.name != nullptr && property.attribute.name == attribute;
    });
}

const Property& sourcePosition() noexcept
{
    static constexpr auto row = Property{
        nullptr, nullptr,
        [] (Control* x, Plane& plane, std::size_t i, Atoms values, bool notify) {
            plane.SetSourcePosition (i, pointOf (values), notify);
            mirrorSourcePosition (x, i);
            // The position has already been stored.
            touchAttribute (x, symbols().sourcespositions);
            mirrorSourceYaw (x, i); // may follow the position, and not every mode reports it
        }
    }.stored ([] (Control* x, std::size_t i, Atoms values) {
        storePoint (pointOf (values), x->sourcespositions + 3 * i);
    });
    return row;
}

const Property& speakersPositions() noexcept
{
    static constexpr auto row = Property{
        nullptr, nullptr,
        [] (Control* x, Plane& plane, std::size_t, Atoms values, bool notify) {
            qel::Point3Array positions (values.size() / 3);
            for (std::size_t i = 0; i < positions.size(); ++i)
                positions[i] = pointOf (values, 3 * i);
            plane.SetSpeakersPositions (positions, notify);
            mirrorSpeakers (x);
            touchAttribute (x, symbols().speakerspositions);
        }
    }.stored ([] (Control* x, std::size_t, Atoms values) {
        for (std::size_t i = 0; i < values.size(); ++i)
            x->speakerspositions[i] = values.number (i);
    });
    return row;
}

const Property& listenerPosition() noexcept
{
    static constexpr auto row = Property{ nullptr, nullptr,
                                          [] (Control* x, Plane& plane, std::size_t, Atoms values, bool notify) {
                                              plane.SetListenerPosition (pointOf (values), notify);
                                              mirrorListenerPosition (x);
                                              touchAttribute (x, symbols().listenerposition);
                                          } }
                                    .saved()
                                    .stored ([] (Control* x, std::size_t, Atoms values) {
                                        storePoint (pointOf (values), x->listenerposition);
                                    });
    return row;
}

const Property& radiusConstraint() noexcept
{
    static constexpr Property row{ nullptr, "l", [] (Control*, Plane& plane, std::size_t, Atoms values, bool) {
                                      plane.SetRadiusConstraint (values.integer (0) != 0);
                                  } };
    return row;
}

const Property& modified() noexcept
{
    static constexpr Property row{ nullptr, "", [] (Control* x, Plane&, std::size_t, Atoms, bool) {
                                      orvanemax::notifyModified (x);
                                  } };
    return row;
}

}
