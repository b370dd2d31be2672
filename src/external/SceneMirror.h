#pragma once
#include "external/HalcyraControl.h"
#include "gui/plane/PlaneListener.h"

namespace halcyra
{

/** Updates the mirrors of the listener and of the sources' yaw and aperture after the user's edits on the plane, and
    notifies; sends nothing. Scene updates mirror and notify by themselves. Main thread. */
class SceneMirror : public lumo::PlaneListener
{
public:
    /** Registers itself with the object's plane. */
    explicit SceneMirror (t_halcyra_control* owner);
    ~SceneMirror() override;

    SceneMirror (const SceneMirror&) = delete;
    SceneMirror& operator= (const SceneMirror&) = delete;

    /** The owner is being freed: mirrors nothing from here on, though the plane may still be in use. */
    void leaveOwner() noexcept { x = nullptr; }

    void ListenerPositionChanged (const qel::Point3& position, lumo::PlaneBase& plane) override;
    void ListenerYawChanged (float degrees) override;
    void ListenerPitchChanged (float degrees) override;
    void ListenerRollChanged (float degrees) override;
    void ListenerOrientationChanged (float yaw, float pitch, float roll) override;
    void SourceYawChanged (std::size_t source, float degrees) override;
    void SourceApertureChanged (std::size_t source, float degrees) override;

    /** While one exists, changes come from a scene update and are ignored. */
    class Update
    {
    public:
        explicit Update (SceneMirror& owner) noexcept : mirror (owner) { ++mirror.updates; }
        ~Update() { --mirror.updates; }
        Update (const Update&) = delete;
        Update& operator= (const Update&) = delete;

    private:
        SceneMirror& mirror;
    };

private:
    template <typename Mirror>
    void follow (Mirror&& mirror);

    t_halcyra_control* x; // null once the owner is gone
    lumo::PlaneComponent* plane;
    int updates = 0; // in progress
};

/** Notifies clients of an attribute (such as an attrui) that its value has changed, unless the call in progress has
    freed the object. Main thread. */
void touchAttribute (t_halcyra_control* x, t_symbol* name);

/** Each updates a mirror from the plane and touches its attribute if the value differs; does nothing if the call in
    progress has freed the object. An angle sent in degrees is kept exactly if the plane took it, so that a saved state
    restores the same angle. */
void mirrorSourcePosition (t_halcyra_control* x, std::size_t source);
void mirrorSourceYaw (t_halcyra_control* x, std::size_t source);
void mirrorSourceYaw (t_halcyra_control* x, std::size_t source, float sentDegrees);
void mirrorSourceAperture (t_halcyra_control* x, std::size_t source);
void mirrorSourceAperture (t_halcyra_control* x, std::size_t source, float sentDegrees);
void mirrorSpeakers (t_halcyra_control* x);
void mirrorListenerPosition (t_halcyra_control* x);
void mirrorListenerAngles (t_halcyra_control* x);

}
