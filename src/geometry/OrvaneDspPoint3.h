#pragma once
#include "math/OrvaneDspVector.h"

namespace qel
{

/** A position in metres: +x right, +y front, +z up. */
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

/** An ordered list of points. */
class Point3Array : public Vector<Point3>
{
public:
    using Vector<Point3>::Vector;

    /** The corners top left, top right, bottom right, bottom left, at z = 0, of the rectangle spanned by two corners:
        a is the top left one, otherwise the two are swapped. */
    [[nodiscard]] static Point3Array rectangle (Point3 a, Point3 b);
    /** The rectangle from (-1, 1) to (2, -1). */
    [[nodiscard]] static Point3Array defaultRectangle();
};

/** The mean of the points; the origin if there are none. */
[[nodiscard]] Point3 barycentre (const Point3Array& points) noexcept;
/** The largest distance from the origin; 0 if there are no points. */
[[nodiscard]] float maximumRadius (const Point3Array& points) noexcept;

}
