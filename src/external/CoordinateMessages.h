#pragma once
#include "external/HalcyraControl.h"
#include "geometry/OrvaneDspCoordinates.h"
#include "max/Atoms.h"

#include <array>

/** Parses positions in messages: a type word and its numbers, into cartesian metres. On bad atoms each reader logs the
    error, returns false and leaves the points unchanged. Without a type word it warns and defaults to `ade`.
    Main thread. */
namespace halcyra
{

/** For the listener. Relative types start from the point's present value. */
bool parseOnePoint (t_halcyra_control* x, qel::Point3& point, orvanemax::Atoms atoms);

/** For one speaker or source; an optional leading index counts from 1. */
bool parseOneSpeaker (t_halcyra_control* x, qel::Point3& point, orvanemax::Atoms atoms);
bool parseOneSource (t_halcyra_control* x, qel::Point3& point, orvanemax::Atoms atoms);

/** For areas and anchors: as many points as there are numbers for. An unknown type word empties the array. */
bool parseManyPoints (t_halcyra_control* x, qel::Point3Array& points, orvanemax::Atoms atoms);

/** For all speakers at once: as many points as the array has. */
bool parseAllSpeakers (t_halcyra_control* x, qel::Point3Array& points, orvanemax::Atoms atoms);

/** Sets the format of positions in output messages. */
void setOutputFormat (t_halcyra_control* x, t_symbol* name);

/** Writes a point in the object's format at `out` and advances it. Returns false for a read-only format. */
bool writeInFormat (const t_halcyra_control* x, const qel::Point3& point, t_atom*& out);

}
