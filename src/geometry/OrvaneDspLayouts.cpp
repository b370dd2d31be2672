#include "geometry/OrvaneDspLayouts.h"
#include "geometry/OrvaneDspSpherical.h"

#include <array>
#include <cmath>

namespace qel
{

namespace
{

constexpr std::size_t numRows = 8;

/** User azimuths in degrees; row n - 1 holds the standard layout for n speakers. */
constexpr std::array<std::array<float, numRows>, numRows> speakerAzimuths{ {
    { 0 },
    { -30, 30 },
    { -30, 30, 180 },
    { -45, 45, 135, -135 },
    { -30, 0, 30, 110, -110 },
    { -45, 45, 90, 135, -135, -90 },
    { -30, 0, 30, 90, 150, -150, -90 },
    { -45, 0, 45, 90, 135, 180, -135, -90 },
} };

Point3 onUnitCircle (float userAzimuth) noexcept
{
    const float a = internalAngle (userAzimuth);
    return { std::cos (a), std::sin (a), 0 };
}

}

Point3Array ringLayout (std::size_t count)
{
    Point3Array points (count);
    for (std::size_t i = 0; i < count; ++i)
        points[i] = onUnitCircle (static_cast<float> (i) * 360.0f / static_cast<float> (count));
    return points;
}

Point3Array defaultSpeakerLayout (std::size_t count)
{
    if (count == 0 || count > numRows)
        return ringLayout (count);
    Point3Array points (count);
    std::transform (points.begin(), points.end(), speakerAzimuths[count - 1].begin(), points.begin(),
                    [] (const Point3&, float azimuth) { return onUnitCircle (azimuth); });
    return points;
}

void copyTriples (const Point3Array& points, float* triples) noexcept
{
    for (const Point3& p : points) {
        *triples++ = p.x;
        *triples++ = p.y;
        *triples++ = p.z;
    }
}

}
