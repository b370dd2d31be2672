#include "geometry/OrvaneDspCoordinates.h"
#include "geometry/OrvaneDspSpherical.h"

#include <array>
#include <cmath>

namespace qel
{

namespace
{

using Values = const float*;

/** Returns the point after reading values into p. */
using Reader = Point3 (*) (const Point3& p, Values v);
using Writer = void (*) (const Point3& p, float* v);

struct Format
{
    std::string_view name; ///< of a literal, so null-terminated
    std::size_t count;
    Reader read;  ///< null: not readable from messages
    Writer write; ///< null: not writable
};

/** Below this distance a point would lose its direction. */
float farEnough (float distance) noexcept { return std::max (distance, 1e-5f); }

/** Direction as used in wave field synthesis: 0 in front, counter-clockwise. */
float wfsAngle (const Point3& p) noexcept { return wrapDegrees (std::atan2 (p.y, p.x) * degreesPerRadian + 270.0f); }

template <std::size_t n>
void put (float* v, const std::array<float, n>& values)
{
    std::copy (values.begin(), values.end(), v);
}

/** In the order of CoordinateType. */
// clang-format off
constexpr std::array<Format, numCoordinateTypes> formats { {
    { "xyz", 3, [] (const Point3&, Values v) { return Point3 { v[0], v[1], v[2] }; },
                [] (const Point3& p, float* v) { put<3> (v, { p.x, p.y, p.z }); } },
    { "xy", 2, [] (const Point3&, Values v) { return Point3 { v[0], v[1], 0 }; },
               [] (const Point3& p, float* v) { put<2> (v, { p.x, p.y }); } },
    { "x++", 1, [] (const Point3& p, Values v) { return Point3 { p.x + v[0], p.y, p.z }; }, nullptr },
    { "y++", 1, [] (const Point3& p, Values v) { return Point3 { p.x, p.y + v[0], p.z }; }, nullptr },
    { "z++", 1, [] (const Point3& p, Values v) { return Point3 { p.x, p.y, p.z + v[0] }; }, nullptr },
    { "ade", 3, [] (const Point3&, Values v) { return fromUserSpherical (v[0], v[2], v[1]); },
                [] (const Point3& p, float* v) { put<3> (v, { azimuth (p), distance (p), elevation (p) }); } },
    { "aed", 3, [] (const Point3&, Values v) { return fromUserSpherical (v[0], v[1], v[2]); },
                [] (const Point3& p, float* v) { put<3> (v, { azimuth (p), elevation (p), distance (p) }); } },
    { "ae", 2, [] (const Point3&, Values v) { return fromUserSpherical (v[0], v[1], 1); },
               [] (const Point3& p, float* v) { put<2> (v, { azimuth (p), elevation (p) }); } },
    { "ad", 2, [] (const Point3&, Values v) { return fromUserSpherical (v[0], 0, v[1]); },
               [] (const Point3& p, float* v) { put<2> (v, { azimuth (p), distance (p) }); } },
    { "az", 1, [] (const Point3&, Values v) { return fromUserSpherical (v[0], 0, 1); },
               [] (const Point3& p, float* v) { put<1> (v, { azimuth (p) }); } },
    { "azim", 1, [] (const Point3& p, Values v) { return withAzimuth (p, v[0]); }, nullptr },
    { "azim++", 1, [] (const Point3& p, Values v) { return withAzimuth (p, azimuth (p) + v[0]); }, nullptr },
    { "elev", 1, [] (const Point3& p, Values v) { return withElevation (p, v[0]); }, nullptr },
    { "elev++", 1, [] (const Point3& p, Values v) { return withElevation (p, elevation (p) + v[0]); }, nullptr },
    { "azimelev", 2, [] (const Point3& p, Values v) { return fromUserSpherical (v[0], v[1], distance (p)); }, nullptr },
    { "dist", 1, [] (const Point3& p, Values v) { return withDistance (p, farEnough (std::abs (v[0]))); }, nullptr },
    { "dist++", 1, [] (const Point3& p, Values v) { return withDistance (p, farEnough (distance (p) + v[0])); }, nullptr },
    { "dist*=", 1, [] (const Point3& p, Values v) { return withDistance (p, farEnough (distance (p) * v[0])); }, nullptr },
    { "ambrel3", 3, [] (const Point3&, Values v) { return fromUserSpherical (-v[0], v[2], v[1]); },
                    [] (const Point3& p, float* v) { put<3> (v, { -azimuth (p), distance (p), elevation (p) }); } },
    { "wfs", 2, [] (const Point3&, Values v) { return fromUserSpherical (-v[0], 0, v[1]); },
                [] (const Point3& p, float* v) { put<2> (v, { wfsAngle (p), distance (p) }); } },
    { "x", 1, [] (const Point3& p, Values v) { return Point3 { v[0], p.y, p.z }; }, nullptr },
    { "y", 1, [] (const Point3& p, Values v) { return Point3 { p.x, v[0], p.z }; }, nullptr },
    { "z", 1, [] (const Point3& p, Values v) { return Point3 { p.x, p.y, v[0] }; }, nullptr },
    { "sofacartesian", 3, nullptr, nullptr },
    { "sofaspherical", 3, nullptr, nullptr },
    { "none", 0, nullptr, nullptr },
} };
// clang-format on

const Format* formatOf (CoordinateType type) noexcept
{
    const auto number = static_cast<std::int32_t> (type);
    return number >= 0 && number < numCoordinateTypes ? &formats[static_cast<std::size_t> (number)] : nullptr;
}

bool areFinite (Values values, std::size_t count) noexcept
{
    return std::all_of (values, values + count, [] (float v) { return std::isfinite (v); });
}

}

const char* nameOfCoordinateType (CoordinateType type) noexcept
{
    const Format* const format = formatOf (type);
    return format == nullptr ? "" : format->name.data();
}

bool findCoordinateType (std::string_view name, CoordinateType& type) noexcept
{
    for (std::size_t i = 0; i < formats.size(); ++i)
        if (formats[i].read != nullptr && name == formats[i].name) {
            type = static_cast<CoordinateType> (i);
            return true;
        }
    return false;
}

std::size_t coordinateCount (CoordinateType type) noexcept
{
    const Format* const format = formatOf (type);
    return format == nullptr ? 0 : format->count;
}

bool isWritable (CoordinateType type) noexcept
{
    const Format* const format = formatOf (type);
    return format != nullptr && format->write != nullptr;
}

bool setPoint (Point3& p, CoordinateType type, const float* values, std::size_t count) noexcept
{
    const Format* const format = formatOf (type);
    if (format == nullptr || format->read == nullptr || count < format->count || ! areFinite (values, format->count))
        return false;
    const Point3 result = format->read (p, values);
    if (! std::isfinite (distance (result)))
        return false;
    p = result;
    return true;
}

bool writePoint (const Point3& p, CoordinateType type, float* values) noexcept
{
    const Format* const format = formatOf (type);
    if (format == nullptr || format->write == nullptr || ! std::isfinite (distance (p)))
        return false;
    format->write (p, values);
    return true;
}

}
