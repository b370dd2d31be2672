#include "geometry/OrvaneDspPoint3.h"
#include "geometry/OrvaneDspSpherical.h"

#include <cmath>

namespace qel
{

bool isFinite (const Point3& p) noexcept { return std::isfinite (p.x) && std::isfinite (p.y) && std::isfinite (p.z); }

Point3Array Point3Array::rectangle (Point3 a, Point3 b)
{
    if (! (a.x < b.x && b.y < a.y))
        std::swap (a, b);
    return { { a.x, a.y, 0 }, { b.x, a.y, 0 }, { b.x, b.y, 0 }, { a.x, b.y, 0 } };
}

Point3Array Point3Array::defaultRectangle() { return rectangle ({ -1, 1, 0 }, { 2, -1, 0 }); }

Point3 barycentre (const Point3Array& points) noexcept
{
    if (points.empty())
        return {};
    Point3 sum;
    for (const Point3& p : points)
        sum = sum + p;
    const auto count = static_cast<float> (points.size());
    return { sum.x / count, sum.y / count, sum.z / count };
}

float maximumRadius (const Point3Array& points) noexcept
{
    float radius = 0;
    for (const Point3& p : points)
        radius = std::max (radius, distance (p));
    return radius;
}

}
