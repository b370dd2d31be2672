#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <cstdint>
#include <string_view>

namespace qel
{

/** The coordinate formats for positions. Their names ("xyz", "x++", ...) appear in messages.
    To add one: a value here before `none`, and its row in OrvaneDspCoordinates.cpp. */
enum class CoordinateType : std::int32_t
{
    xyz = 0,
    xy,
    addX,
    addY,
    addZ,
    ade,
    aed,
    ae,
    ad,
    az,
    azim,
    addAzim,
    elev,
    addElev,
    azimelev,
    dist,
    addDist,
    scaleDist,
    ambrel3,
    wfs,
    x,
    y,
    z,
    sofacartesian,
    sofaspherical,
    none
};

inline constexpr std::int32_t numCoordinateTypes = 26;
/** The largest value count of any type. */
inline constexpr std::size_t maxCoordinateValues = 3;
inline constexpr CoordinateType defaultCoordinateType = CoordinateType::aed;

/** The name of a type, "" if unknown. The text is static. */
[[nodiscard]] const char* nameOfCoordinateType (CoordinateType type) noexcept;
/** Looks up a type by name; false and untouched for names that are unknown or not for messages (sofa types, "none"). */
[[nodiscard]] bool findCoordinateType (std::string_view name, CoordinateType& type) noexcept;
/** How many values a type reads and writes; 0 for an unknown type. */
[[nodiscard]] std::size_t coordinateCount (CoordinateType type) noexcept;
/** Whether writePoint supports the type: the absolute formats of a whole point. */
[[nodiscard]] bool isWritable (CoordinateType type) noexcept;

/** Sets a point in place from values in degrees and metres; relative types start from its present value. Extra values
    are ignored. Returns false and leaves the point unchanged if values are missing, if any value or the result is not
    finite, or if the type is not readable. Never allocates. */
[[nodiscard]] bool setPoint (Point3& p, CoordinateType type, const float* values, std::size_t count) noexcept;

/** Writes coordinateCount (type) values. Returns false and writes nothing if the type is not writable or the point is
    too far away to represent. Never allocates. */
[[nodiscard]] bool writePoint (const Point3& p, CoordinateType type, float* values) noexcept;

}
