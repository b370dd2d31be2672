#pragma once
#include <cstddef>
#include <vector>

namespace lumo
{

class PlaneComponent;

/** Poses of everything on a plane, as one list of numbers to compare and restore: per source x y z (metres), yaw, its
    offset and aperture (radians), per speaker x y z, and for the listener x y z, yaw, pitch and roll. Message
    thread. */
namespace poses
{
using Poses = std::vector<float>;

/** Reads into a vector that keeps its storage between calls. */
void read (const PlaneComponent& plane, Poses& out);

/** Restores what differs, exactly, bypassing constraints and wrapping, and notifies the plane's listeners. A list of
    another length is ignored. */
void restore (PlaneComponent& plane, const Poses& wish);
}

}
