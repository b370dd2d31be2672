#include "gui/plane/ScenePoses.h"

#include "gui/plane/PlaneComponent.h"

#include <algorithm>

namespace lumo::poses
{
namespace
{

constexpr std::size_t sourceSize = 6, pointSize = 3, listenerSize = 6;

float* write (float* out, const qel::Point3& point)
{
    *out++ = point.x;
    *out++ = point.y;
    *out++ = point.z;
    return out;
}

float* write (float* out, const Plane::Source& source)
{
    out = write (out, source.position);
    *out++ = source.yaw;
    *out++ = source.yawOffset;
    *out++ = source.aperture;
    return out;
}

qel::Point3 pointAt (const float* values) { return { values[0], values[1], values[2] }; }

bool differ (const float* a, const float* b, std::size_t count) { return ! std::equal (a, a + count, b); }

}

void read (const PlaneComponent& plane, Poses& out)
{
    const auto& scene = plane.GetScene();
    out.resize (sourceSize * scene.sources.size() + pointSize * scene.speakers.size() + listenerSize);
    auto* next = out.data();
    for (const auto& source : scene.sources)
        next = write (next, source);
    for (const auto& speaker : scene.speakers)
        next = write (next, speaker.position);
    const auto& listener = plane.GetListener();
    next = write (next, listener.position);
    *next++ = listener.yaw;
    *next++ = listener.pitch;
    *next++ = listener.roll;
}

void restore (PlaneComponent& plane, const Poses& wish)
{
    Poses present;
    read (plane, present);
    if (wish.size() != present.size())
        return;
    const auto numSources = plane.GetNumSources(), numSpeakers = plane.GetNumSpeakers();
    const auto* from = present.data();
    const auto* to = wish.data();
    const auto step = [&] (std::size_t count) {
        from += count;
        to += count;
    };
    for (std::size_t i = 0; i < numSources; ++i, step (sourceSize))
        if (differ (from, to, sourceSize))
            plane.RestoreSource (i, { pointAt (to), to[3], to[4], to[5] });
    if (differ (from, to, pointSize * numSpeakers)) {
        qel::Point3Array positions (numSpeakers);
        for (std::size_t i = 0; i < numSpeakers; ++i)
            positions[i] = pointAt (to + pointSize * i);
        plane.SetSpeakersPositions (positions, true);
    }
    step (pointSize * numSpeakers);
    if (differ (from, to, listenerSize))
        plane.RestoreListener (pointAt (to), to[3], to[4], to[5]);
}

}
