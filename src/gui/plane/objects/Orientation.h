#pragma once
#include "geometry/OrvaneDspPoint3.h"
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <optional>

/** What a source's yaw does when the source moves. */
namespace lumo::Plane::Orientation
{

enum Mode : std::int32_t
{
    yawConstraint,
    translation,
    follow,
    listenerConstraint
};

/** Exact names: "yawconstraint", "translation", "follow", "listenerconstraint"; any other gives yawConstraint. */
Mode ModeNamed (const qel::String& name);
/** The empty text for a number that is no mode. */
qel::String NameOf (std::int32_t mode);

/** Brings an angle into [-180, 180). */
float WrapDegrees (float degrees) noexcept;

/** The yaw in degrees that turns a source at a position towards a target, by the triangle of the two and the origin.
    Nothing where the triangle has no such angle: the target on the source or on the origin. */
std::optional<float> YawLookingAt (const qel::Point3& source, const qel::Point3& target);

}
