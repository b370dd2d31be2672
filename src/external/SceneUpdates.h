#pragma once
#include "external/SceneProperties.h"
#include "geometry/OrvaneDspPoint3.h"

/** Changes of the scene on their way from messages and attributes to the plane. The wish is stored at once; the effect
    comes through the queue when `display` and `defer` are both on, else at once too. Indices count from 0 and must be
    good. Main thread. */
namespace halcyra::scene
{

/** The values fit the property's row. */
void update (t_halcyra_control* x, const Property& property, t_atom_long index, orvanemax::Atoms values, bool notify);

/** Finds the row for a word of a message and the values behind it, and makes the change; false if there is none. */
bool updateByKey (t_halcyra_control* x, Properties properties, t_atom_long index, orvanemax::Atoms keyAndValues,
                  bool notify);

// Positions in metres.
void moveSource (t_halcyra_control* x, t_atom_long source, const qel::Point3& position, bool notify);
void moveSpeakers (t_halcyra_control* x, const qel::Point3Array& positions, bool notify);
void moveListener (t_halcyra_control* x, const qel::Point3& position, bool notify);

void setRadiusConstraint (t_halcyra_control* x, bool on);

/** Notifies that saved state has changed, behind the updates that were made so far. */
void notifyModified (t_halcyra_control* x);

/** A fresh object's scene: colours, layouts, names and levels. Main thread, by the queue. */
void initialise (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);

/** The positions of the mirrors. */
[[nodiscard]] qel::Point3 sourceInMirror (const t_halcyra_control* x, t_atom_long source) noexcept;
[[nodiscard]] qel::Point3Array speakersInMirror (const t_halcyra_control* x);

}
