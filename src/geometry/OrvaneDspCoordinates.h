#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <cstdint>
#include <string_view>

namespace qel
{

/** The forms in which a position is told. Their names ("xyz", "x++", ...) are the words of messages.
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
/** The most values that a type has. */
inline constexpr std::size_t maxCoordinateValues = 3;
inline constexpr CoordinateType defaultCoordinateType = CoordinateType::aed;

/** The name of a type, "" for a number that is none. The text lives forever. */
[[nodiscard]] const char* nameOfCoordinateType (CoordinateType type) noexcept;
/** The type of a name; false and untouched for a name that is unknown or not for messages (the sofa types, "none"). */
[[nodiscard]] bool findCoordinateType (std::string_view name, CoordinateType& type) noexcept;
/** How many values a type reads and writes; 0 for a number that is none. */
[[nodiscard]] std::size_t coordinateCount (CoordinateType type) noexcept;
/** Whether writePoint knows the type: the absolute forms of a whole point. */
[[nodiscard]] bool isWritable (CoordinateType type) noexcept;

/** Sets a point from values in degrees and metres, in place; relative types start from what it is. Values beyond the
    type's count are not looked at. False, and the point untouched, if values are missing, if one is not finite, if
    the result would not be, or if the type cannot be read. Never allocates. */
[[nodiscard]] bool setPoint (Point3& p, CoordinateType type, const float* values, std::size_t count) noexcept;

/** Writes coordinateCount (type) values. False, and nothing written, if the type has no written form or the point is
    too far away to be told. Never allocates. */
[[nodiscard]] bool writePoint (const Point3& p, CoordinateType type, float* values) noexcept;

}
