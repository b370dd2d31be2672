#include "gui/plane/objects/Source.h"

#include "geometry/OrvaneDspSpherical.h"
#include "gui/scene/Limits.h"

#include <algorithm>
#include <cmath>

namespace lumo::Plane
{

Source::Source (int number) : label (juce::String (number)) {}

Plane::Icon Source::Icon() const noexcept
{
    return { editable ? Plane::Icon::Kind::source : Plane::Icon::Kind::fixedSource, colour };
}

float Source::Direction() const noexcept { return std::atan2 (position.y, position.x); }

void Source::SetYaw (float degrees)
{
    const float radians = Orientation::WrapDegrees (degrees) * qel::radiansPerDegree;
    if (yawMode != Orientation::yawConstraint && yawMode != Orientation::translation)
        return;
    yaw = radians; // exact, even if a move later derives it from the offset
    yawOffset = RelativeYaw();
}

std::optional<float> Source::UpdateYaw (const qel::Point3& listener)
{
    switch (yawMode) {
    case Orientation::yawConstraint:
        yawOffset = RelativeYaw();
        return {};
    case Orientation::translation:
        yaw = qel::wrapRadians (Direction() + yawOffset + qel::halfPi);
        return YawDegrees();
    case Orientation::follow:
        return {};
    case Orientation::listenerConstraint: // reports 0 to 360; the others -180 to 180
        yawOffset = yaw - std::atan2 (position.y - listener.y, position.x - listener.x) - qel::halfPi;
        return qel::wrapDegrees (yawOffset * qel::degreesPerRadian - 180.0f);
    }
    return {};
}

float Source::RelativeYaw() const noexcept { return yaw - Direction() - qel::halfPi; }

float Source::YawDegrees() const noexcept { return Orientation::WrapDegrees (yaw * qel::degreesPerRadian); }

void Source::SetApertureDegrees (float degrees) noexcept
{
    aperture = std::clamp (degrees, 10.0f, 180.0f) * qel::radiansPerDegree;
}

float Source::ApertureDegrees() const noexcept { return aperture * qel::degreesPerRadian; }

void Source::SetProportion (float value) noexcept
{
    proportion = ClampProportion (value);
    apertureProportion = proportion * 1.07f;
}

}
