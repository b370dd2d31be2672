#include "external/SceneUpdates.h"

#include "external/PerSourceStores.h"
#include "external/PointMirror.h"
#include "external/SceneMirror.h"
#include "geometry/OrvaneDspLayouts.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/scene/Limits.h"
#include "max/MainThread.h"
#include "max/ObjectCall.h"

#include <algorithm>
#include <array>

namespace halcyra::scene
{
namespace
{

using orvanemax::Atoms;
using orvanemax::objectIsGone;

/** Atoms of a queued update: the property, the index, whether to notify listeners, the values. */
constexpr std::size_t head = 3;

void carryOut (t_halcyra_control* x, t_symbol*, short argc, t_atom* argv)
{
    const Atoms atoms (argc, argv);
    const auto& property = *static_cast<const Property*> (atom_getobj (argv));
    const SceneMirror::Update update (*x->scene);
    property.effect (x, *x->plane, static_cast<std::size_t> (atoms.integer (1)), atoms.from (head),
                     atoms.integer (2) != 0);
}

/** Points as atoms, three floats each. */
template <std::size_t points>
class Coordinates
{
public:
    Coordinates() {} // not defaulted: Coordinates() would zero all atoms, 12 kB for all speakers

    Coordinates& add (const qel::Point3& p)
    {
        for (const float value : { p.x, p.y, p.z })
            atom_setfloat (&atoms[count++], static_cast<double> (value));
        return *this;
    }
    operator Atoms() const noexcept { return { static_cast<t_clong> (count), atoms.data() }; }

private:
    std::array<t_atom, 3 * points> atoms; // only the first `count` atoms are valid
    std::size_t count = 0;
};

/** The atom arrays are null if their allocation failed. */
void storeLevel (t_atom* levels, t_atom_long index, float decibels) noexcept
{
    const std::lock_guard<std::mutex> lock (perSourceStores());
    if (levels != nullptr)
        atom_setfloat (&levels[index], static_cast<double> (decibels));
}

}

void update (t_halcyra_control* x, const Property& property, t_atom_long index, Atoms values, bool notify)
{
    if (property.wish != nullptr)
        property.wish (x, static_cast<std::size_t> (index), values);
    if (! property.isQueued)
        return property.effect (x, *x->plane, static_cast<std::size_t> (index), values, notify);

    std::array<t_atom, head + maxPositions> atoms; // only the first `size` atoms are valid
    const auto size = head + std::min<std::size_t> (values.size(), maxPositions);
    atom_setobj (&atoms[0], const_cast<Property*> (&property));
    atom_setlong (&atoms[1], index);
    atom_setlong (&atoms[2], notify ? 1 : 0);
    std::copy_n (values.begin(), size - head, &atoms[head]);
    if (x->display == 1 && x->defer == 1) {
        orvanemax::runOnMainThread (x, orvanemax::hostFunction<carryOut>(), nullptr, static_cast<t_clong> (size),
                                    atoms.data());
        return;
    }
    carryOut (x, nullptr, static_cast<short> (size), atoms.data());
    if (! objectIsGone() && x->viewerqelem != nullptr)
        qelem_set (x->viewerqelem);
}

bool updateByKey (t_halcyra_control* x, Properties properties, t_atom_long index, Atoms keyAndValues, bool notify)
{
    if (! keyAndValues.fit ("s"))
        return false;
    const std::string_view key = keyAndValues.symbol (0)->s_name;
    const auto behindKey = keyAndValues.from (1);
    for (const auto& property : properties)
        if (key == property.key && behindKey.fit (property.values) &&
            (property.isGood == nullptr || property.isGood (behindKey.symbol (0)))) {
            const auto count = std::string_view (property.values).size();
            update (x, property, index, { static_cast<t_clong> (count), behindKey.begin() }, notify);
            if (property.isSaved)
                notifyModified (x);
            return true;
        }
    return false;
}

void moveSource (t_halcyra_control* x, t_atom_long source, const qel::Point3& position, bool notify)
{
    update (x, sourcePosition(), source, Coordinates<1>().add (position), notify);
}

void moveSpeakers (t_halcyra_control* x, const qel::Point3Array& positions, bool notify)
{
    Coordinates<maxSources> coordinates;
    const auto count = std::min (positions.size(), static_cast<std::size_t> (x->numspeakers));
    for (std::size_t i = 0; i < count; ++i)
        coordinates.add (positions[i]);
    update (x, speakersPositions(), 0, coordinates, notify);
}

void moveListener (t_halcyra_control* x, const qel::Point3& position, bool notify)
{
    update (x, listenerPosition(), 0, Coordinates<1>().add (position), notify);
}

void setRadiusConstraint (t_halcyra_control* x, bool on)
{
    t_atom atom{};
    atom_setlong (&atom, on ? 1 : 0);
    update (x, radiusConstraint(), 0, { 1, &atom }, true);
}

void notifyModified (t_halcyra_control* x)
{
    if (! objectIsGone())
        update (x, modified(), 0, {}, true);
}

void initialise (t_halcyra_control* x, t_symbol*, short, t_atom*)
{
    const auto& colourOfSource = withAttribute (sourceProperties(), "sourcecolor");
    const auto& nameOfSource = withAttribute (sourceProperties(), "name");
    std::array<t_atom, 4> colour{};
    for (std::size_t i = 0; i < colour.size(); ++i)
        atom_setfloat (&colour[i], static_cast<double> (newSourceColour[i]));
    for (t_atom_long i = 0; ! objectIsGone() && i < x->numsources; ++i)
        update (x, colourOfSource, i, { 4, colour.data() }, true);
    const auto ring = qel::ringLayout (static_cast<std::size_t> (x->numsources));
    for (t_atom_long i = 0; ! objectIsGone() && i < x->numsources; ++i)
        moveSource (x, i, ring[static_cast<std::size_t> (i)], true);
    if (objectIsGone())
        return;
    moveSpeakers (x, qel::defaultSpeakerLayout (static_cast<std::size_t> (x->numspeakers)), true);
    for (t_atom_long i = 0; ! objectIsGone() && i < x->numsources; ++i) {
        t_atom number{};
        atom_setlong (&number, i + 1);
        update (x, nameOfSource, i, { 1, &number }, true);
    }
    if (objectIsGone())
        return;
    for (t_atom_long i = 0; i < x->numsources; ++i) {
        x->plane->SetSourceLevel (static_cast<std::size_t> (i), lumo::Plane::leastLevel);
        storeLevel (x->sourceslevels, i, lumo::Plane::leastLevel);
    }
    for (t_atom_long i = 0; i < x->numspeakers; ++i) {
        x->plane->SetSpeakerLevel (static_cast<std::size_t> (i), lumo::Plane::leastLevel);
        storeLevel (x->speakerslevels, i, lumo::Plane::leastLevel);
    }
}

qel::Point3 sourceInMirror (const t_halcyra_control* x, t_atom_long source) noexcept
{
    return pointIn (x->sourcespositions + 3 * source);
}

qel::Point3Array speakersInMirror (const t_halcyra_control* x)
{
    qel::Point3Array positions (static_cast<std::size_t> (x->numspeakers));
    for (std::size_t i = 0; i < positions.size(); ++i)
        positions[i] = pointIn (x->speakerspositions + 3 * i);
    return positions;
}

}
