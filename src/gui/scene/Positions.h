#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <algorithm>

namespace lumo::Plane
{

/** Positions of sources or speakers, in order. */
template <typename Object>
[[nodiscard]] qel::Point3Array PositionsOf (const qel::Vector<Object>& objects)
{
    qel::Point3Array positions (objects.size());
    std::transform (objects.begin(), objects.end(), positions.begin(),
                    [] (const Object& object) { return object.position; });
    return positions;
}

}
