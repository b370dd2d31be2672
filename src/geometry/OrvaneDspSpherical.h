#pragma once
#include "geometry/OrvaneDspPoint3.h"

/** Spherical coordinates, in single precision throughout. The user's azimuth is in degrees, 0 in front, +90 right,
    clockwise from above; the internal angle is in radians, from +x towards +y. The elevation is 0 in the horizontal
    plane and +90 degrees straight up. */
namespace qel
{

inline constexpr float pi = 3.1415927f, twoPi = 6.2831855f, halfPi = 1.5707964f;
inline constexpr float degreesPerRadian = 57.29578f, radiansPerDegree = 0.017453292f;

/** Wraps into 0 <= degrees < 360. */
[[nodiscard]] float wrapDegrees (float degrees) noexcept;
/** Wraps into -pi <= radians < pi. */
[[nodiscard]] float wrapRadians (float radians) noexcept;

[[nodiscard]] float internalAngle (float userAzimuth) noexcept;
/** -180 to below 180 degrees. */
[[nodiscard]] float userAzimuth (float internalAngle) noexcept;

/** In metres. */
[[nodiscard]] float distance (const Point3& p) noexcept;
/** The user's azimuth in degrees; at the origin that of atan2 (0, 0). */
[[nodiscard]] float azimuth (const Point3& p) noexcept;
/** In degrees; 0 at the origin. */
[[nodiscard]] float elevation (const Point3& p) noexcept;

/** The only conversion to cartesian: angles in radians of any size, distance of either sign. */
[[nodiscard]] Point3 fromSpherical (float internalAngle, float distance, float elevation) noexcept;
/** The same from the user's azimuth and elevation in degrees. */
[[nodiscard]] Point3 fromUserSpherical (float azimuth, float elevation, float distance) noexcept;

/** These set one component and keep the other two. Degrees and metres. */
[[nodiscard]] Point3 withAzimuth (const Point3& p, float azimuth) noexcept;
/** An elevation beyond straight up or down continues on the other side. */
[[nodiscard]] Point3 withElevation (const Point3& p, float elevation) noexcept;
[[nodiscard]] Point3 withDistance (const Point3& p, float distance) noexcept;

}
