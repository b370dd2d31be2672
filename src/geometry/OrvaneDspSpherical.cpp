#include "geometry/OrvaneDspSpherical.h"

#include <cfloat>
#include <cmath>

namespace qel
{

namespace
{

/** Internal angle and elevation of a point, in radians. */
float angleOf (const Point3& p) noexcept { return std::atan2 (p.y, p.x); }

float elevationAngleOf (const Point3& p) noexcept
{
    const float r = distance (p);
    return r > 0 ? std::asin (std::clamp (p.z / r, -1.0f, 1.0f)) : 0.0f;
}

Point3 fromAngles (float a, float r, float e) noexcept
{
    return { std::cos (a) * r * std::cos (e), std::sin (a) * r * std::cos (e), std::sin (e) * r };
}

}

float wrapDegrees (float degrees) noexcept
{
    constexpr float turn = 360;
    float wrapped = std::fmod (degrees, turn); // the remainder, for numbers of any size
    if (wrapped < 0)
        wrapped += turn;
    return wrapped >= turn ? wrapped - turn : wrapped;
}

float wrapRadians (float radians) noexcept
{
    float wrapped = std::fmod (radians, twoPi);
    if (wrapped >= pi)
        wrapped -= twoPi;
    return wrapped < -pi ? wrapped + twoPi : wrapped;
}

float internalAngle (float userAzimuth) noexcept
{
    return (wrapDegrees (270.0f - userAzimuth) - 180.0f) * radiansPerDegree;
}

float userAzimuth (float internalAngle) noexcept
{
    return wrapDegrees (270.0f - internalAngle * degreesPerRadian) - 180.0f;
}

float distance (const Point3& p) noexcept
{
    const float square = p.x * p.x + p.y * p.y + p.z * p.z;
    if (square >= FLT_MIN && square <= FLT_MAX)
        return std::sqrt (square);
    // Squares of very near and very far points exceed the range of single precision.
    const double x = p.x, y = p.y, z = p.z;
    return static_cast<float> (std::sqrt (x * x + y * y + z * z));
}

float azimuth (const Point3& p) noexcept { return userAzimuth (angleOf (p)); }

float elevation (const Point3& p) noexcept { return elevationAngleOf (p) * degreesPerRadian; }

Point3 fromSpherical (float internalAngle, float distance, float elevation) noexcept
{
    float a = internalAngle, r = distance, e = wrapRadians (elevation);
    if (e > halfPi) {
        a += pi;
        e = pi - e;
    } else if (e < -halfPi) {
        a += pi;
        e = -pi - e;
    }
    if (r < 0) {
        r = -r;
        e = -e;
        a += pi;
    }
    return fromAngles (wrapRadians (a), r, e);
}

Point3 fromUserSpherical (float azimuth, float elevation, float distance) noexcept
{
    return fromSpherical (internalAngle (azimuth), distance, elevation * radiansPerDegree);
}

Point3 withAzimuth (const Point3& p, float azimuth) noexcept
{
    return fromAngles (internalAngle (azimuth), distance (p), elevationAngleOf (p));
}

Point3 withElevation (const Point3& p, float elevation) noexcept
{
    constexpr float zenith = 90, halfTurn = 180;
    const float wrapped = wrapDegrees (elevation + halfTurn) - halfTurn;
    if (wrapped > zenith)
        return fromUserSpherical (azimuth (p) + halfTurn, halfTurn - wrapped, distance (p));
    if (wrapped < -zenith)
        return fromUserSpherical (azimuth (p) + halfTurn, -halfTurn - wrapped, distance (p));
    return fromAngles (angleOf (p), distance (p), wrapped * radiansPerDegree);
}

Point3 withDistance (const Point3& p, float distance) noexcept
{
    return fromSpherical (angleOf (p), distance, elevationAngleOf (p));
}

}
