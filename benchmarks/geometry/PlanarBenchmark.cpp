#include "geometry/OrvaneDspConvexHull2D.h"
#include "geometry/OrvaneDspTriangulation.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <random>
#include <vector>

/** Both should be O(n log n): a factor of 24 from 256 to 4,096 points. */

namespace
{

using qel::Point3Array;

constexpr std::size_t numSets = 50; // rotates inputs, so that branch prediction cannot learn one

using Random = std::mt19937;

Point3Array scattered (std::size_t count, Random& random)
{
    std::uniform_real_distribution<float> place (-10, 10);
    Point3Array points;
    while (points.size() < count)
        points.push_back ({ place (random), place (random), 0 });
    return points;
}

/** All on the hull, except for rounding. */
Point3Array onACircle (std::size_t count, Random& random)
{
    Point3Array points;
    for (std::size_t i = 0; i < count; ++i) {
        const float angle = static_cast<float> (i) * 6.2831853f / static_cast<float> (count);
        points.push_back ({ std::cos (angle), std::sin (angle), 0 });
    }
    std::shuffle (points.begin(), points.end(), random);
    return points;
}

/** Every four neighbours are cocircular, which the exact predicates decide. */
Point3Array onAGrid (std::size_t count, Random& random)
{
    const auto side = static_cast<std::size_t> (std::sqrt (static_cast<double> (count)));
    Point3Array points;
    for (std::size_t y = 0; y < side; ++y)
        for (std::size_t x = 0; x < side; ++x)
            points.push_back ({ static_cast<float> (x), static_cast<float> (y), 0 });
    std::shuffle (points.begin(), points.end(), random);
    return points;
}

template <typename Work>
void measure (benchmark::State& state, Point3Array (*make) (std::size_t, Random&), Work&& work)
{
    Random random (1);
    std::vector<Point3Array> sets;
    while (sets.size() < numSets)
        sets.push_back (make (static_cast<std::size_t> (state.range (0)), random));
    std::size_t turn = 0;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize (work (sets[turn++ % numSets]));
}

void hull (benchmark::State& state, Point3Array (*make) (std::size_t, Random&))
{
    measure (state, make, [] (const Point3Array& points) { return qel::ConvexHull2D (points).hull().size(); });
}

void triangulation (benchmark::State& state, Point3Array (*make) (std::size_t, Random&))
{
    qel::Triangulation result;
    measure (state, make, [&] (const Point3Array& points) { return result.compute (points); });
}

}

BENCHMARK_CAPTURE (hull, scattered, scattered)->Arg (256)->Arg (4096);
BENCHMARK_CAPTURE (hull, circle, onACircle)->Arg (256)->Arg (4096);
BENCHMARK_CAPTURE (triangulation, scattered, scattered)->Arg (256)->Arg (4096);
BENCHMARK_CAPTURE (triangulation, circle, onACircle)->Arg (256)->Arg (4096);
BENCHMARK_CAPTURE (triangulation, grid, onAGrid)->Arg (256)->Arg (4096);

BENCHMARK_MAIN();
