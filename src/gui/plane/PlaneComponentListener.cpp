#include "geometry/OrvaneDspSpherical.h"
#include "gui/plane/PlaneComponent.h"
#include "gui/scene/Finite.h"
#include "gui/scene/Limits.h"

namespace lumo
{

using namespace Plane;

/** While it cannot be dragged, the listener is part of the static layer. */
template <typename Change>
void PlaneComponent::ChangeListener (Change&& change)
{
    const auto before = PartOfListener();
    change (surface.listener);
    const auto after = PartOfListener();
    if (! surface.listener.editable)
        MarkStaticParts (before, after);
    RepaintMove (before, after);
}

void PlaneComponent::SetListenerPosition (const qel::Point3& position, bool notify)
{
    if (! listenerEnabled || ! qel::isFinite (position))
        return;
    ChangeListener ([&] (Plane::Listener& listener) {
        listener.position = position;
        listener.screenPosition = OnScreen (surface.viewTransform, position);
    });
    areaMonitor.ReportListener();
    if (notify)
        Notify ([&, position] (PlaneListener& l) { l.ListenerPositionChanged (position, *this); });
}

void PlaneComponent::SetListenerAngle (float& stored, float degrees, bool notify, void (PlaneListener::*told) (float))
{
    if (! listenerEnabled || ! AreFinite (degrees))
        return;
    const float wrapped = Orientation::WrapDegrees (degrees);
    ChangeListener ([&] (Plane::Listener&) { stored = wrapped * qel::radiansPerDegree; });
    if (notify)
        Notify ([&] (PlaneListener& l) { (l.*told) (wrapped); });
}

void PlaneComponent::SetListenerYaw (float degrees, bool notify)
{
    SetListenerAngle (surface.listener.yaw, degrees, notify, &PlaneListener::ListenerYawChanged);
}

void PlaneComponent::SetListenerPitch (float degrees, bool notify)
{
    SetListenerAngle (surface.listener.pitch, degrees, notify, &PlaneListener::ListenerPitchChanged);
}

void PlaneComponent::SetListenerRoll (float degrees, bool notify)
{
    SetListenerAngle (surface.listener.roll, degrees, notify, &PlaneListener::ListenerRollChanged);
}

void PlaneComponent::SetListenerOrientation (float yaw, float pitch, float roll, bool notify)
{
    if (! listenerEnabled || ! AreFinite (yaw, pitch, roll))
        return;
    yaw = Orientation::WrapDegrees (yaw);
    pitch = Orientation::WrapDegrees (pitch);
    roll = Orientation::WrapDegrees (roll);
    ChangeListener ([&] (Plane::Listener& listener) {
        listener.yaw = yaw * qel::radiansPerDegree;
        listener.pitch = pitch * qel::radiansPerDegree;
        listener.roll = roll * qel::radiansPerDegree;
    });
    if (notify)
        Notify ([&] (PlaneListener& l) { l.ListenerOrientationChanged (yaw, pitch, roll); });
}

void PlaneComponent::RestoreListener (const qel::Point3& position, float yaw, float pitch, float roll)
{
    if (! listenerEnabled || ! qel::isFinite (position) || ! AreFinite (yaw, pitch, roll))
        return;
    auto& listener = surface.listener;
    listener.yaw = yaw;
    listener.pitch = pitch;
    listener.roll = roll;
    SetListenerPosition (position, true);
    Notify ([&] (PlaneListener& l) {
        l.ListenerOrientationChanged (yaw * qel::degreesPerRadian, pitch * qel::degreesPerRadian,
                                      roll * qel::degreesPerRadian);
    });
}

void PlaneComponent::SetListenerEditable (bool editable)
{
    SetOption (surface.listener.editable, editable && listenerEnabled);
}

void PlaneComponent::SetListenerVisible (bool visible)
{
    if (listenerEnabled)
        SetOption (surface.listener.visible, visible);
}

/** Headphones replace the speakers, which are not editable meanwhile and are shown again afterwards. */
void PlaneComponent::SetHeadphonesVisible (bool visible)
{
    if (! listenerEnabled || surface.listener.headphonesVisible == visible)
        return;
    SetOption (surface.listener.headphonesVisible, visible);
    SetSpeakersEditable (! visible, true);
    if (! visible)
        SetSpeakersVisible (true);
}

void PlaneComponent::SetListenerProportion (float proportion)
{
    if (! listenerEnabled || ! AreFinite (proportion))
        return;
    surface.listener.proportion = ClampProportion (proportion);
    MarkStaticLayerDirty();
    repaint();
}

}
