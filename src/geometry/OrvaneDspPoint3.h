#pragma once
#include "math/OrvaneDspVector.h"

namespace qel
{

/** A position in metres: +x to the right, +y in front, +z up. */
struct Point3
{
    float x = 0, y = 0, z = 0;

    friend bool operator== (const Point3& a, const Point3& b) noexcept
    {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend bool operator!= (const Point3& a, const Point3& b) noexcept { return ! (a == b); }
    friend Point3 operator+ (const Point3& a, const Point3& b) noexcept { return { a.x + b.x, a.y + b.y, a.z + b.z }; }
    friend Point3 operator- (const Point3& a, const Point3& b) noexcept { return { a.x - b.x, a.y - b.y, a.z - b.z }; }
    friend Point3 operator* (const Point3& a, float scale) noexcept
    {
        return { a.x * scale, a.y * scale, a.z * scale };
    }
};

[[nodiscard]] inline float dot (const Point3& a, const Point3& b) noexcept { return a.x * b.x + a.y * b.y + a.z * b.z; }
[[nodiscard]] bool isFinite (const Point3& p) noexcept;

/** Points, in order. */
class Point3Array : public Vector<Point3>
{
public:
    using Vector<Point3>::Vector;

    /** The corners left top, right top, right bottom, left bottom, at z = 0, of the rectangle between two corners:
        a is the left top one, or else the two are exchanged. */
    [[nodiscard]] static Point3Array rectangle (Point3 a, Point3 b);
    /** The rectangle from (-1, 1) to (2, -1). */
    [[nodiscard]] static Point3Array defaultRectangle();
};

/** The mean of the points; the null point for none. */
[[nodiscard]] Point3 barycentre (const Point3Array& points) noexcept;
/** The largest distance from the origin; 0 for no points. */
[[nodiscard]] float maximumRadius (const Point3Array& points) noexcept;

}
