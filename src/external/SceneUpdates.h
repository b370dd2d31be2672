#pragma once
#include "external/SceneProperties.h"
#include "geometry/OrvaneDspPoint3.h"

/** Updates of the scene from messages and attributes to the plane. The requested value is stored at once; its effect is
    queued if `display` and `defer` are both on, otherwise immediate. Indices start at 0 and must be valid.
    Main thread. */
namespace halcyra::scene
{

/** The values must fit the property's row. */
void update (t_halcyra_control* x, const Property& property, t_atom_long index, orvanemax::Atoms values, bool notify);

/** Finds the row for a message's word and the values after it, and applies it; false if there is none. */
bool updateByKey (t_halcyra_control* x, Properties properties, t_atom_long index, orvanemax::Atoms keyAndValues,
                  bool notify);

// Positions in metres.
void moveSource (t_halcyra_control* x, t_atom_long source, const qel::Point3& position, bool notify);
void moveSpeakers (t_halcyra_control* x, const qel::Point3Array& positions, bool notify);
void moveListener (t_halcyra_control* x, const qel::Point3& position, bool notify);

void setRadiusConstraint (t_halcyra_control* x, bool on);

/** Notifies that saved state has changed, behind the updates so far. */
void notifyModified (t_halcyra_control* x);

/** Initialises a new object's scene: colours, layouts, names and levels. Main thread, from the queue. */
void initialise (t_halcyra_control* x, t_symbol* unused, short argc, t_atom* argv);

/** The positions in the mirrors. */
[[nodiscard]] qel::Point3 sourceInMirror (const t_halcyra_control* x, t_atom_long source) noexcept;
[[nodiscard]] qel::Point3Array speakersInMirror (const t_halcyra_control* x);

}
