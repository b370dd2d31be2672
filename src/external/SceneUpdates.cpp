#include "external/SceneUpdates.h"

#include "external/PerSourceStores.h"
#include "external/PointMirror.h"
#include "external/SceneWorkers.h"
#include "geometry/OrvaneDspLayouts.h"
#include "gui/plane/PlaneComponent.h"
#include "max/Guarded.h"
#include "max/MainThread.h"

#include <algorithm>
#include <array>

namespace halcyra::scene
{
namespace
{

/** The arrays of atoms are null in an object that could not get their memory. */
void storeLevel (t_atom* levels, t_atom_long index, float decibels) noexcept
{
    const std::lock_guard<std::mutex> lock (perSourceStores());
    if (levels != nullptr)
        atom_setfloat (&levels[index], static_cast<double> (decibels));
}

/** The atoms of one change: index or nothing, values, and last the notification flag. */
class Packet
{
public:
    Packet() {} // not defaulted: Packet() would zero all atoms, 12 kB of them

    Packet& add (t_atom_long value)
    {
        atom_setlong (&atoms[count++], value);
        return *this;
    }
    Packet& add (float value)
    {
        atom_setfloat (&atoms[count++], static_cast<double> (value));
        return *this;
    }
    Packet& add (t_symbol* value)
    {
        atom_setsym (&atoms[count++], value);
        return *this;
    }
    Packet& add (const qel::Point3& p) { return add (p.x).add (p.y).add (p.z); }
    Packet& add (const float (&rgba)[4]) { return add (rgba[0]).add (rgba[1]).add (rgba[2]).add (rgba[3]); }

    /** The one rule of all scene updates. */
    template <workers::Worker worker>
    void send (t_halcyra_control* x, bool notify)
    {
        add (static_cast<t_atom_long> (notify));
        const auto size = static_cast<short> (count);
        if (x->display == 1 && x->defer == 1) {
            orvanemax::runOnMainThread (x, orvanemax::hostFunction<worker>(), nullptr, size, atoms.data());
            return;
        }
        worker (x, nullptr, size, atoms.data());
        if (! orvanemax::objectIsGone() && x->viewerqelem != nullptr)
            qelem_set (x->viewerqelem);
    }

private:
    std::array<t_atom, maxPositions + 1> atoms; // filled as far as count says
    std::size_t count = 0;
};

}

void setSourcePosition (t_halcyra_control* x, t_atom_long source, const qel::Point3& position, bool notify)
{
    // At once, so that the next relative move starts from here, deferred or not.
    storePoint (position, x->sourcespositions + 3 * source);
    Packet().add (source).add (position).send<workers::sourcePosition> (x, notify);
}

void setSourceColour (t_halcyra_control* x, t_atom_long source, const float (&rgba)[4], bool notify)
{
    Packet().add (source).add (rgba).send<workers::sourceColour> (x, notify);
}

void setSourceName (t_halcyra_control* x, t_atom_long source, t_symbol* name, bool notify)
{
    Packet().add (source).add (name).send<workers::sourceName> (x, notify);
}

void setSourceOrientationMode (t_halcyra_control* x, t_atom_long source, t_symbol* mode, bool notify)
{
    Packet().add (source).add (mode).send<workers::sourceOrientationMode> (x, notify);
}

void setSourceAperture (t_halcyra_control* x, t_atom_long source, float degrees, bool notify)
{
    Packet().add (source).add (degrees).send<workers::sourceAperture> (x, notify);
}

void setSourceYaw (t_halcyra_control* x, t_atom_long source, float degrees, bool notify)
{
    Packet().add (source).add (degrees).send<workers::sourceYaw> (x, notify);
}

void setSourceRadius (t_halcyra_control* x, t_atom_long source, float metres, bool notify)
{
    Packet().add (source).add (metres).send<workers::sourceRadius> (x, notify);
}

void setSourceVisible (t_halcyra_control* x, t_atom_long source, bool visible, bool notify)
{
    Packet().add (source).add (static_cast<t_atom_long> (visible)).send<workers::sourceVisible> (x, notify);
}

void setSourceLookAt (t_halcyra_control* x, t_atom_long source, const qel::Point3& target, bool notify)
{
    Packet().add (source).add (target).send<workers::sourceLookAt> (x, notify);
}

void setSpeakerName (t_halcyra_control* x, t_atom_long speaker, t_symbol* name, bool notify)
{
    Packet().add (speaker).add (name).send<workers::speakerName> (x, notify);
}

void setSpeakerColour (t_halcyra_control* x, t_atom_long speaker, const float (&rgba)[4], bool notify)
{
    Packet().add (speaker).add (rgba).send<workers::speakerColour> (x, notify);
}

void setSpeakerVisible (t_halcyra_control* x, t_atom_long speaker, bool visible, bool notify)
{
    Packet().add (speaker).add (static_cast<t_atom_long> (visible)).send<workers::speakerVisible> (x, notify);
}

void sendSpeakers (t_halcyra_control* x, bool notify)
{
    Packet packet;
    for (t_atom_long i = 0; i < 3 * x->numspeakers; ++i)
        packet.add (x->speakerspositions[i]);
    packet.send<workers::speakersPositions> (x, notify);
}

void sendListenerPosition (t_halcyra_control* x, bool notify)
{
    Packet().add (pointIn (x->listenerposition)).send<workers::listenerPosition> (x, notify);
}

void sendListenerYaw (t_halcyra_control* x, bool notify)
{
    Packet().add (x->listeneryaw).send<workers::listenerYaw> (x, notify);
}

void sendListenerPitch (t_halcyra_control* x, bool notify)
{
    Packet().add (x->listenerpitch).send<workers::listenerPitch> (x, notify);
}

void sendListenerRoll (t_halcyra_control* x, bool notify)
{
    Packet().add (x->listenerroll).send<workers::listenerRoll> (x, notify);
}

void sendListenerOrientation (t_halcyra_control* x, bool notify)
{
    Packet()
        .add (x->listeneryaw)
        .add (x->listenerpitch)
        .add (x->listenerroll)
        .send<workers::listenerOrientation> (x, notify);
}

bool isOrientationMode (const t_symbol* word)
{
    using namespace lumo::Plane::Orientation;
    return NameOf (ModeNamed (word->s_name)) == word->s_name;
}

void setRadiusConstraint (t_halcyra_control* x, bool on)
{
    Packet().add (static_cast<t_atom_long> (on)).send<workers::radiusConstraint> (x, true);
}

void notifyModified (t_halcyra_control* x)
{
    if (! orvanemax::objectIsGone())
        Packet().send<workers::modified> (x, true);
}

void initialise (t_halcyra_control* x, t_symbol*, short, t_atom*)
{
    orvanemax::guarded (x, [x] {
        constexpr float colour[4] = { 0.49019608f, 1, 0, 1 };
        constexpr float silence = -60; // dB
        for (t_atom_long i = 0; i < x->numsources; ++i)
            setSourceColour (x, i, colour, true);
        const auto ring = qel::ringLayout (static_cast<std::size_t> (x->numsources));
        for (t_atom_long i = 0; ! orvanemax::objectIsGone() && i < x->numsources; ++i)
            setSourcePosition (x, i, ring[static_cast<std::size_t> (i)], true);
        if (orvanemax::objectIsGone())
            return;
        storeSpeakersInMirror (x, qel::defaultSpeakerLayout (static_cast<std::size_t> (x->numspeakers)));
        sendSpeakers (x, true);
        if (orvanemax::objectIsGone())
            return;
        for (t_atom_long i = 0; i < x->numsources; ++i)
            setSourceName (x, i, gensym (std::to_string (i + 1).c_str()), true);
        for (t_atom_long i = 0; i < x->numsources; ++i) {
            x->plane->SetSourceLevel (static_cast<std::size_t> (i), silence);
            storeLevel (x->sourceslevels, i, silence);
        }
        for (t_atom_long i = 0; i < x->numspeakers; ++i) {
            x->plane->SetSpeakerLevel (static_cast<std::size_t> (i), silence);
            storeLevel (x->speakerslevels, i, silence);
        }
    });
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

void storeSpeakersInMirror (t_halcyra_control* x, const qel::Point3Array& positions) noexcept
{
    const auto count = std::min (positions.size(), static_cast<std::size_t> (x->numspeakers));
    for (std::size_t i = 0; i < count; ++i)
        storePoint (positions[i], x->speakerspositions + 3 * i);
}

}
