#include "external/SceneMirror.h"

#include "external/PerSourceStores.h"
#include "external/PointMirror.h"
#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/PlaneComponent.h"
#include "max/Guarded.h"
#include "max/Modified.h"

#include <cmath>

namespace halcyra
{
namespace
{

using lumo::Plane::Orientation::WrapDegrees;
using orvanemax::objectIsGone;
using orvanemax::symbols;

/** Converts stored radians to degrees: returns the degrees sent, if they give the stored value. */
float degreesHeld (float radians, float sentDegrees) noexcept
{
    return WrapDegrees (sentDegrees) * qel::radiansPerDegree == radians ? sentDegrees
                                                                        : WrapDegrees (radians * qel::degreesPerRadian);
}

/** A yaw in degrees in the range of its attribute. */
float withinHalfTurn (float degrees) noexcept { return std::abs (degrees) <= 180 ? degrees : WrapDegrees (degrees); }

bool storePointIfOther (const qel::Point3& point, float* triple) noexcept
{
    if (pointIn (triple) == point)
        return false;
    storePoint (point, triple);
    return true;
}

/** The atom arrays are null if their allocation failed. */
bool storeFloatIfOther (t_atom* array, std::size_t index, float value) noexcept
{
    const auto wide = static_cast<double> (value);
    const std::lock_guard<std::mutex> lock (perSourceStores());
    if (array == nullptr)
        return false;
    const bool isOther = atom_gettype (&array[index]) != A_FLOAT || atom_getfloat (&array[index]) != wide;
    atom_setfloat (&array[index], wide); // also turns -0 into 0, though they are equal
    return isOther;
}

float presentDegrees (const t_atom* array, std::size_t index) noexcept
{
    return array == nullptr ? 0.0f : static_cast<float> (atom_getfloat (&array[index]));
}

const lumo::Plane::Source* sourceAt (const t_halcyra_control* x, std::size_t source) noexcept
{
    const auto& sources = x->plane->GetScene().sources;
    return source < sources.size() ? &sources[source] : nullptr;
}

}

void touchAttribute (t_halcyra_control* x, t_symbol* name)
{
    if (! objectIsGone())
        object_attr_touch (&x->object, name);
}

void mirrorSourcePosition (t_halcyra_control* x, std::size_t source)
{
    if (! objectIsGone() && storePointIfOther (x->plane->GetSourcePosition (source), x->sourcespositions + 3 * source))
        touchAttribute (x, symbols().sourcespositions);
}

void mirrorSourceYaw (t_halcyra_control* x, std::size_t source)
{
    if (! objectIsGone())
        mirrorSourceYaw (x, source, presentDegrees (x->yaw, source));
}

void mirrorSourceYaw (t_halcyra_control* x, std::size_t index, float sentDegrees)
{
    if (objectIsGone())
        return;
    const auto* source = sourceAt (x, index);
    if (source != nullptr && storeFloatIfOther (x->yaw, index, degreesHeld (source->yaw, withinHalfTurn (sentDegrees))))
        touchAttribute (x, symbols().yaw);
}

void mirrorSourceAperture (t_halcyra_control* x, std::size_t source)
{
    if (! objectIsGone())
        mirrorSourceAperture (x, source, presentDegrees (x->aperture, source));
}

void mirrorSourceAperture (t_halcyra_control* x, std::size_t index, float sentDegrees)
{
    if (objectIsGone())
        return;
    const auto* source = sourceAt (x, index);
    if (source == nullptr)
        return;
    const bool isSent = sentDegrees * qel::radiansPerDegree == source->aperture;
    if (storeFloatIfOther (x->aperture, index, isSent ? sentDegrees : source->ApertureDegrees()))
        touchAttribute (x, symbols().aperture);
}

void mirrorSpeakers (t_halcyra_control* x)
{
    if (objectIsGone())
        return;
    bool differ = false;
    for (std::size_t i = 0; i < x->plane->GetNumSpeakers(); ++i)
        differ = storePointIfOther (x->plane->GetSpeakerPosition (i), x->speakerspositions + 3 * i) || differ;
    if (differ)
        touchAttribute (x, symbols().speakerspositions);
}

void mirrorListenerPosition (t_halcyra_control* x)
{
    if (! objectIsGone() && storePointIfOther (x->plane->GetListenerPosition(), x->listenerposition))
        touchAttribute (x, symbols().listenerposition);
}

void mirrorListenerAngles (t_halcyra_control* x)
{
    if (objectIsGone())
        return;
    const auto& listener = x->plane->GetListener();
    const auto mirror = [x] (float& mirrored, float radians, t_symbol* name) {
        const float held = degreesHeld (radians, mirrored);
        if (mirrored == held)
            return;
        mirrored = held;
        touchAttribute (x, name);
    };
    mirror (x->listeneryaw, listener.yaw, symbols().listeneryaw);
    mirror (x->listenerpitch, listener.pitch, symbols().listenerpitch);
    mirror (x->listenerroll, listener.roll, symbols().listenerroll);
}

SceneMirror::SceneMirror (t_halcyra_control* owner) : x (owner), plane (owner->plane) { plane->AddListener (this); }
SceneMirror::~SceneMirror() { plane->RemoveListener (this); }

template <typename Mirror>
void SceneMirror::follow (Mirror&& mirror)
{
    if (updates > 0 || x == nullptr)
        return;
    orvanemax::guarded (x, [&mirror, owner = x] {
        mirror();
        orvanemax::notifyModified (owner);
    });
}

void SceneMirror::ListenerPositionChanged (const qel::Point3&, lumo::PlaneBase&)
{
    follow ([this] { mirrorListenerPosition (x); });
}

void SceneMirror::ListenerYawChanged (float)
{
    follow ([this] { mirrorListenerAngles (x); });
}

void SceneMirror::ListenerPitchChanged (float degrees) { ListenerYawChanged (degrees); }
void SceneMirror::ListenerRollChanged (float degrees) { ListenerYawChanged (degrees); }
void SceneMirror::ListenerOrientationChanged (float yaw, float, float) { ListenerYawChanged (yaw); }

void SceneMirror::SourceYawChanged (std::size_t source, float)
{
    follow ([&] { mirrorSourceYaw (x, source); });
}

void SceneMirror::SourceApertureChanged (std::size_t source, float)
{
    follow ([&] { mirrorSourceAperture (x, source); });
}

}
