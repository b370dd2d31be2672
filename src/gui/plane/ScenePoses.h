#pragma once
#include <cstddef>
#include <vector>

namespace lumo
{

class PlaneComponent;

/** Where everything on a plane stands, as one list of numbers that can be compared and brought back: for each source
    x y z (metres), yaw, its offset and aperture (radians), for each speaker x y z, and for the listener x y z, yaw,
    pitch and roll. Message thread. */
namespace poses
{
using Poses = std::vector<float>;

/** Into a vector that keeps its storage from call to call. */
void read (const PlaneComponent& plane, Poses& out);

/** Brings back what differs from the present, exactly, past constraints and wrapping, and tells the plane's listeners
    of it. A list of another length does nothing. */
void restore (PlaneComponent& plane, const Poses& wish);
}

}
