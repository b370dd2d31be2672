#include "gui/scene/Orientation.h"

#include "geometry/OrvaneDspSpherical.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace lumo::Plane::Orientation
{

namespace
{

constexpr const char* names[] = { "yawconstraint", "translation", "follow", "listenerconstraint" };

float Degrees (float radians) { return radians * qel::degreesPerRadian; }

/** For directions on either side of the half circle. The pi / 4 of the second row and the missing quadrants are kept on
    purpose: existing scenes depend on them. */
float YawAcrossTheBack (float a, float b, float angle)
{
    using qel::halfPi;
    using qel::pi;
    if (a >= halfPi && b <= 0)
        return Degrees (pi - (2 * pi - std::abs (a) - std::abs (b)) - angle);
    if (a <= pi / 4 && b <= -halfPi)
        return -Degrees (pi - a + b - angle);
    if (a <= -halfPi && b <= pi)
        return Degrees (pi - b + a - angle);
    if (b >= halfPi && a <= 0)
        return -Degrees (pi - (2 * pi - std::abs (a) - std::abs (b)) - angle);
    std::cerr << "PlaneComponent::SetSourceLookAt unexpected case" << std::endl;
    return 0;
}

}

Mode ModeNamed (const qel::String& name)
{
    const auto found = std::find (std::begin (names), std::end (names), name);
    return found == std::end (names) ? yawConstraint : static_cast<Mode> (found - std::begin (names));
}

qel::String NameOf (std::int32_t mode)
{
    return mode >= yawConstraint && mode <= listenerConstraint ? names[mode] : "";
}

float WrapDegrees (float degrees) noexcept { return qel::wrapDegrees (degrees + 180.0f) - 180.0f; }

std::optional<float> YawLookingAt (const qel::Point3& source, const qel::Point3& target)
{
    const float a = std::atan2 (source.y, source.x);
    const float b = std::atan2 (target.y, target.x);
    const float towardsTarget = qel::wrapDegrees (270.0f - Degrees (b)) - 180.0f;
    const float towardsSource = qel::wrapDegrees (270.0f - Degrees (a)) - 180.0f;

    const float sourceRadius = qel::distance (source);
    const float targetRadius = qel::distance (target);
    const float between = qel::distance (source - target);
    if (! (between * targetRadius > 0.00001f))
        return {};
    const float cosine =
        (between * between - sourceRadius * sourceRadius + targetRadius * targetRadius) / (2 * between * targetRadius);
    if (! std::isfinite (cosine))
        return {};
    const float angle = std::acos (std::clamp (cosine, -1.0f, 1.0f));

    const float turn = towardsTarget - towardsSource;
    if (std::abs (turn) > 180.0f)
        return YawAcrossTheBack (a, b, angle);
    return Degrees (turn >= 0 ? qel::pi - a + b - angle : -(qel::pi - b + a - angle)) - 90.0f;
}

}
