#pragma once
#include "external/HalcyraControl.h"
#include "geometry/OrvaneDspPoint3.h"
#include "text/OrvaneDspString.h"

/** Changes of the scene on their way from messages and attributes to the plane. Each is packed into atoms and handed
    to its worker: through the queue when `display` and `defer` are both on, else at once. The worker stores what
    belongs in the mirrors and calls the plane. Indices count from 0 and must be good. Main thread.

    To add a change: a function here, and in SceneUpdates.cpp its worker. */
namespace halcyra::scene
{

void setSourcePosition (t_halcyra_control* x, t_atom_long source, const qel::Point3& position, bool notify);
void setSourceColour (t_halcyra_control* x, t_atom_long source, const float (&rgba)[4], bool notify);
void setSourceName (t_halcyra_control* x, t_atom_long source, t_symbol* name, bool notify);
void setSourceOrientationMode (t_halcyra_control* x, t_atom_long source, t_symbol* mode, bool notify);
void setSourceAperture (t_halcyra_control* x, t_atom_long source, float degrees, bool notify);
void setSourceYaw (t_halcyra_control* x, t_atom_long source, float degrees, bool notify);
void setSourceRadius (t_halcyra_control* x, t_atom_long source, float metres, bool notify);
void setSourceVisible (t_halcyra_control* x, t_atom_long source, bool visible, bool notify);
void setSourceLookAt (t_halcyra_control* x, t_atom_long source, const qel::Point3& target, bool notify);

void setSpeakerName (t_halcyra_control* x, t_atom_long speaker, t_symbol* name, bool notify);
void setSpeakerColour (t_halcyra_control* x, t_atom_long speaker, const float (&rgba)[4], bool notify);
void setSpeakerVisible (t_halcyra_control* x, t_atom_long speaker, bool visible, bool notify);
/** All speakers, as they stand in the mirror. */
void sendSpeakers (t_halcyra_control* x, bool notify);

/** The listener, as its mirrors say. */
void sendListenerPosition (t_halcyra_control* x, bool notify);
void sendListenerYaw (t_halcyra_control* x, bool notify);
void sendListenerPitch (t_halcyra_control* x, bool notify);
void sendListenerRoll (t_halcyra_control* x, bool notify);
void sendListenerOrientation (t_halcyra_control* x, bool notify);

/** Whether the word names one. */
[[nodiscard]] bool isOrientationMode (const t_symbol* word);

/** Whether a move keeps a source's distance: in its turn, so that it bends no move that came before it. */
void setRadiusConstraint (t_halcyra_control* x, bool on);

/** Notifies that saved state has changed, behind the updates that were made so far. */
void notifyModified (t_halcyra_control* x);

/** A fresh object's scene: colours, layouts, names and levels. Main thread, by the queue. */
void initialise (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);

/** The positions of the mirrors. */
[[nodiscard]] qel::Point3 sourceInMirror (const t_halcyra_control* x, t_atom_long source) noexcept;
[[nodiscard]] qel::Point3Array speakersInMirror (const t_halcyra_control* x);
void storeSpeakersInMirror (t_halcyra_control* x, const qel::Point3Array& positions) noexcept;

}
