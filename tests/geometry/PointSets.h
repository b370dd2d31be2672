#pragma once
#include "geometry/OrvaneDspPoint3.h"

#include <cmath>
#include <cstdint>
#include <random>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

/** Random point sets on an integer grid, where tests can compute exactly. */
namespace pointsets
{

__extension__ using Wide = __int128;

struct GridPoint
{
    std::int64_t x, y;
    friend bool operator<(const GridPoint& a, const GridPoint& b) { return std::tie (a.x, a.y) < std::tie (b.x, b.y); }
    friend bool operator== (const GridPoint& a, const GridPoint& b) { return a.x == b.x && a.y == b.y; }
};
using GridPoints = std::vector<GridPoint>;

/** Twice a triangle's signed area; positive if it turns left. */
inline Wide turn (GridPoint a, GridPoint b, GridPoint c)
{
    return Wide (b.x - a.x) * (c.y - a.y) - Wide (b.y - a.y) * (c.x - a.x);
}

/** Positive if d lies inside the circle through a, b, c (which turn left). Coordinates up to 2 ^ 28. */
inline Wide inside (GridPoint a, GridPoint b, GridPoint c, GridPoint d)
{
    const auto lift = [&] (GridPoint p) { return Wide (p.x - d.x) * (p.x - d.x) + Wide (p.y - d.y) * (p.y - d.y); };
    return lift (a) * turn (d, b, c) + lift (b) * turn (d, c, a) + lift (c) * turn (d, a, b);
}

/** Scales by a power of two, which preserves every sign. */
inline qel::Point3Array scaled (const GridPoints& points, int exponent)
{
    qel::Point3Array result;
    for (const auto& p : points)
        result.push_back ({ std::ldexp (float (p.x), exponent), std::ldexp (float (p.y), exponent), float (p.x % 7) });
    return result;
}

struct Kind
{
    const char* name;
    GridPoint (*draw) (std::mt19937&);
};

inline std::int64_t within (std::mt19937& random, std::int64_t limit)
{
    return std::int64_t (random() % std::uint32_t (2 * limit + 1)) - limit;
}

constexpr Kind kinds[] = {
    { "scattered",
      [] (std::mt19937& r) {
          return GridPoint{ within (r, 1 << 20), within (r, 1 << 20) };
      } },
    { "on a small grid",
      [] (std::mt19937& r) {
          return GridPoint{ within (r, 3), within (r, 3) };
      } },
    { "in clusters",
      [] (std::mt19937& r) {
          return GridPoint{ within (r, 1) * 100'000 + within (r, 2), within (r, 1) * 100'000 + within (r, 2) };
      } },
    { "nearly in a line",
      [] (std::mt19937& r) {
          const auto t = within (r, 100'000);
          return GridPoint{ 7 * t, 3 * t + within (r, 1) };
      } },
    { "on three lines",
      [] (std::mt19937& r) {
          return GridPoint{ within (r, 1), within (r, 1'000'000) };
      } },
    { "on one circle",
      [] (std::mt19937& r) { // the integer points at radius 65
          constexpr GridPoint eighth[] = { { 65, 0 }, { 63, 16 }, { 60, 25 }, { 56, 33 }, { 52, 39 } };
          auto p = eighth[r() % 5];
          if (r() % 2 != 0)
              std::swap (p.x, p.y);
          return GridPoint{ r() % 2 != 0 ? p.x : -p.x, r() % 2 != 0 ? p.y : -p.y };
      } },
    { "far apart",
      [] (std::mt19937& r) {
          return GridPoint{ within (r, 2) * (1 << r() % 20), within (r, 2) * (1 << r() % 20) };
      } },
};

/** Up to a number of points of one kind, possibly with duplicates. */
inline GridPoints draw (const Kind& kind, std::mt19937& random, unsigned most)
{
    GridPoints points (random() % (most + 1));
    for (auto& p : points)
        p = kind.draw (random);
    return points;
}

/** As above without duplicates, in random order. */
inline GridPoints distinct (const GridPoints& points)
{
    GridPoints result;
    std::set<GridPoint> seen;
    for (const auto& p : points)
        if (seen.insert (p).second)
            result.push_back (p);
    return result;
}

}
