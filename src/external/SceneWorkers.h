#pragma once
#include "external/HalcyraControl.h"

/** The far ends of the scene updates: each reads its atoms back, stores what belongs in the mirrors, and calls the
    plane. Main thread; the atoms are those that SceneUpdates packed. */
namespace halcyra::scene::workers
{

using Worker = void (*) (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);

void sourcePosition (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceColour (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceName (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceOrientationMode (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceAperture (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceYaw (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceRadius (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceVisible (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void sourceLookAt (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void speakerName (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void speakerColour (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void speakerVisible (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void speakersPositions (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void listenerPosition (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void listenerYaw (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void listenerPitch (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void listenerRoll (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void listenerOrientation (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void radiusConstraint (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);
void modified (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);

}
