#pragma once
#include "external/HalcyraControl.h"
#include "geometry/OrvaneDspCoordinates.h"
#include "max/Atoms.h"

#include <array>

/** Positions in messages: a type's word and its numbers, read into cartesian metres. Each reader tells what is wrong
    with its atoms and gives false; then the points are as they were. Without a word the type is `ade`, with a warning.
    Main thread. */
namespace halcyra
{

/** For the listener. Relative types start from what the point is. */
bool parseOnePoint (t_halcyra_control* x, qel::Point3& point, orvanemax::Atoms atoms);

/** For one speaker or one source; an index, counted from 1, may stand in front. */
bool parseOneSpeaker (t_halcyra_control* x, qel::Point3& point, orvanemax::Atoms atoms);
bool parseOneSource (t_halcyra_control* x, qel::Point3& point, orvanemax::Atoms atoms);

/** For areas and anchors: as many points as the numbers make. A word that is no type empties the array. */
bool parseManyPoints (t_halcyra_control* x, qel::Point3Array& points, orvanemax::Atoms atoms);

/** For all speakers at once: as many points as the array holds. */
bool parseAllSpeakers (t_halcyra_control* x, qel::Point3Array& points, orvanemax::Atoms atoms);

/** Sets the format in which positions leave the object. */
void setOutputFormat (t_halcyra_control* x, t_symbol* name);

/** Writes a point in the object's format behind `out`, which is moved on. False for a format that only reads. */
bool writeInFormat (const t_halcyra_control* x, const qel::Point3& point, t_atom*& out);

}
