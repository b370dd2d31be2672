#pragma once
#include "external/HalcyraControl.h"
#include "gui/plane/PlaneListener.h"

namespace halcyra
{

/** Keeps the mirrors of the listener, of the sources' yaw and of their aperture in step with what the hand does on the
    plane, and notifies; nothing leaves by the outlet. Scene updates mirror and notify by themselves. Main thread. */
class SceneMirror : public lumo::PlaneListener
{
public:
    /** Registers itself with the object's plane. */
    explicit SceneMirror (t_halcyra_control* owner);
    ~SceneMirror() override;

    SceneMirror (const SceneMirror&) = delete;
    SceneMirror& operator= (const SceneMirror&) = delete;

    /** The owner is being freed: from here on nothing is mirrored, though the plane may still be at work. */
    void leaveOwner() noexcept { x = nullptr; }

    void ListenerPositionChanged (const qel::Point3& position, lumo::PlaneBase& plane) override;
    void ListenerYawChanged (float degrees) override;
    void ListenerPitchChanged (float degrees) override;
    void ListenerRollChanged (float degrees) override;
    void ListenerOrientationChanged (float yaw, float pitch, float roll) override;
    void SourceYawChanged (std::size_t source, float degrees) override;
    void SourceApertureChanged (std::size_t source, float degrees) override;

    /** While one of these lives, changes come from a scene update, and pass by unheard. */
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
    int updates = 0; // under way
};

/** Tells those who watch an attribute (an attrui) that its value has changed, unless the call under way has freed the
    object. Main thread. */
void touchAttribute (t_halcyra_control* x, t_symbol* name);

/** Each brings a mirror to what the plane holds and touches its attribute if that differs; it does nothing for an
    object that the call under way has freed. An angle that was sent, in degrees, is kept to the letter where it is what
    the plane took, so that a saved state gives the same again. */
void mirrorSourcePosition (t_halcyra_control* x, std::size_t source);
void mirrorSourceYaw (t_halcyra_control* x, std::size_t source);
void mirrorSourceYaw (t_halcyra_control* x, std::size_t source, float sentDegrees);
void mirrorSourceAperture (t_halcyra_control* x, std::size_t source);
void mirrorSourceAperture (t_halcyra_control* x, std::size_t source, float sentDegrees);
void mirrorSpeakers (t_halcyra_control* x);
void mirrorListenerPosition (t_halcyra_control* x);
void mirrorListenerAngles (t_halcyra_control* x);

}
