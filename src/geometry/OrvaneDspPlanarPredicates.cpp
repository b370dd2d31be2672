#include "geometry/OrvaneDspPlanarPredicates.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace qel
{

namespace
{

constexpr double halfUlp = 1.1102230246251565e-16; // 2 ^ -53

/** An exact sum of doubles, kept as non-overlapping parts in ascending order. */
class ExactSum
{
public:
    void add (double value) noexcept
    {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const double sum = value + parts[i];
            const double taken = sum - value;
            const double lost = (value - (sum - taken)) + (parts[i] - taken);
            if (lost != 0)
                parts[kept++] = lost;
            value = sum;
        }
        if (value != 0)
            parts[kept++] = value;
        count = kept;
    }

    /** Adds a product in two parts: the rounded one and its rounding error. */
    void addProduct (double a, double b) noexcept
    {
        const double product = a * b;
        const double aHigh = upperBits (a), aLow = a - aHigh;
        const double bHigh = upperBits (b), bLow = b - bHigh;
        add (aLow * bLow - (((product - aHigh * bHigh) - aLow * bHigh) - aHigh * bLow));
        add (product);
    }

    [[nodiscard]] int sign() const noexcept { return count == 0 ? 0 : parts[count - 1] > 0 ? 1 : -1; }

private:
    static double upperBits (double a) noexcept
    {
        const double shifted = 134217729.0 * a; // 2 ^ 27 + 1
        return shifted - (shifted - a);
    }

    std::array<double, 96> parts; ///< enough for inCircle
    std::size_t count = 0;
};

struct Wide
{
    explicit Wide (const Point3& p) noexcept : x (p.x), y (p.y) {}
    Wide (double wideX, double wideY) noexcept : x (wideX), y (wideY) {}
    friend Wide operator- (const Wide& a, const Wide& b) noexcept { return { a.x - b.x, a.y - b.y }; }
    [[nodiscard]] double squaredLength() const noexcept { return x * x + y * y; }

    double x, y;
};

/** The six products of (b - a) x (c - a), signed. Each is exact, because its factors are single precision. */
std::array<double, 6> orientationTerms (const Wide& a, const Wide& b, const Wide& c) noexcept
{
    return { b.x * c.y, -(b.x * a.y), -(a.x * c.y), -(b.y * c.x), b.y * a.x, a.y * c.x };
}

int exactInCircle (const Wide& a, const Wide& b, const Wide& c, const Wide& d) noexcept
{
    struct Row
    {
        const Wide &raised, &first, &second, &third;
        double sign;
    };
    ExactSum sum;
    for (const auto& row : { Row{ a, b, c, d, 1 }, Row{ b, a, c, d, -1 }, Row{ c, a, b, d, 1 }, Row{ d, a, b, c, -1 } })
        for (const double term : orientationTerms (row.first, row.second, row.third)) {
            sum.addProduct (row.sign * row.raised.x * row.raised.x, term);
            sum.addProduct (row.sign * row.raised.y * row.raised.y, term);
        }
    return sum.sign();
}

int signOf (double value) noexcept { return value > 0 ? 1 : -1; }

}

int orientation (const Point3& a, const Point3& b, const Point3& c) noexcept
{
    const Wide p (a), q (b), r (c);
    const double left = (q.x - p.x) * (r.y - p.y), right = (q.y - p.y) * (r.x - p.x);
    const double uncertainty = (3 + 16 * halfUlp) * halfUlp * (std::abs (left) + std::abs (right));
    if (std::abs (left - right) > uncertainty)
        return signOf (left - right);

    ExactSum sum;
    for (const double term : orientationTerms (p, q, r))
        sum.add (term);
    return sum.sign();
}

int inCircle (const Point3& a, const Point3& b, const Point3& c, const Point3& d) noexcept
{
    const Wide origin (d), p = Wide (a) - origin, q = Wide (b) - origin, r = Wide (c) - origin;
    const double qr = q.x * r.y, rq = r.x * q.y, rp = r.x * p.y, pr = p.x * r.y, pq = p.x * q.y, qp = q.x * p.y;
    const double pLift = p.squaredLength(), qLift = q.squaredLength(), rLift = r.squaredLength();
    const double value = pLift * (qr - rq) + qLift * (rp - pr) + rLift * (pq - qp);
    const double magnitude = pLift * (std::abs (qr) + std::abs (rq)) + qLift * (std::abs (rp) + std::abs (pr)) +
                             rLift * (std::abs (pq) + std::abs (qp));
    if (std::abs (value) > (10 + 96 * halfUlp) * halfUlp * magnitude)
        return signOf (value);
    return exactInCircle (Wide (a), Wide (b), Wide (c), origin);
}

}
