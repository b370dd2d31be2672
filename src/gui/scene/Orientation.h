#pragma once
#include "geometry/OrvaneDspPoint3.h"
#include "text/OrvaneDspString.h"

#include <cstdint>
#include <optional>

/** How a source's yaw changes when the source moves. */
namespace lumo::Plane::Orientation
{

enum Mode : std::int32_t
{
    yawConstraint,
    translation,
    follow,
    listenerConstraint
};

/** Exact names: "yawconstraint", "translation", "follow", "listenerconstraint"; any other returns yawConstraint. */
Mode ModeNamed (const qel::String& name);
/** Empty for an unknown mode. */
qel::String NameOf (std::int32_t mode);

/** Wraps an angle into [-180, 180). */
float WrapDegrees (float degrees) noexcept;

/** The yaw in degrees that turns a source towards a target, from their triangle with the origin. Empty if the target
    coincides with the source or the origin. */
std::optional<float> YawLookingAt (const qel::Point3& source, const qel::Point3& target);

}
