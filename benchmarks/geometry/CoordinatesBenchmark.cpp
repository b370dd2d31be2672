#include "geometry/OrvaneDspCoordinates.h"

#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

/** Every coordinate format, parsed from its name and numbers and written back. "ratio" is the time relative to copying
    three numbers. A format that allocates fails. */

namespace
{

std::size_t allocations = 0;

}

// Counts C heap allocations, below both the library's own arrays and operator new.
#if defined(__GLIBC__)
extern "C" void* __libc_malloc (std::size_t bytes);
extern "C" void* malloc (std::size_t bytes)
{
    ++allocations;
    return __libc_malloc (bytes);
}
#else
void* operator new (std::size_t bytes)
{
    ++allocations;
    if (void* const p = std::malloc (bytes))
        return p;
    throw std::bad_alloc();
}
void operator delete (void* p) noexcept { std::free (p); }
void operator delete (void* p, std::size_t) noexcept { std::free (p); }
#endif

namespace
{

using Clock = std::chrono::steady_clock;
using Values = std::array<float, qel::maxCoordinateValues>;

constexpr std::size_t numInputs = 64; // rotates inputs, so that branch prediction cannot learn one

std::array<Values, numInputs> inputs() noexcept
{
    std::array<Values, numInputs> all{};
    for (std::size_t i = 0; i < numInputs; ++i) {
        const auto n = static_cast<float> (i);
        all[i] = { n * 5.3f - 170, n * 2.1f - 60, n * 0.25f - 8 };
    }
    return all;
}

double nanosecondsSince (Clock::time_point start)
{
    return std::chrono::duration<double, std::nano> (Clock::now() - start).count();
}

/** The time to copy three numbers, in the same loop. */
double floorNanoseconds()
{
    static const double floor = [] {
        constexpr int rounds = 20'000'000;
        const auto values = inputs();
        Values copy{};
        const auto start = Clock::now();
        for (std::size_t i = 0; i < rounds; ++i) {
            copy = values[i % numInputs];
            benchmark::DoNotOptimize (copy);
        }
        return nanosecondsSince (start) / rounds;
    }();
    return floor;
}

template <typename Step>
void measure (benchmark::State& state, Step&& step)
{
    const double floor = floorNanoseconds();
    std::size_t turn = 0;
    const std::size_t before = allocations;
    const auto start = Clock::now();
    for ([[maybe_unused]] auto _ : state)
        step (turn++ % numInputs);
    const double each = nanosecondsSince (start) / static_cast<double> (turn);
    const std::size_t allocated = allocations - before;
    state.counters["ratio"] = each / floor;
    state.counters["allocations"] = static_cast<double> (allocated);
    if (allocated != 0)
        state.SkipWithError ("allocates");
}

/** Resets the point for relative formats, so that it does not drift away in a long run. */
void read (benchmark::State& state, qel::CoordinateType type)
{
    const auto values = inputs();
    const std::string_view name = qel::nameOfCoordinateType (type);
    measure (state, [&] (std::size_t i) {
        qel::Point3 p{ 1, 2, 3 };
        auto found = qel::CoordinateType::none;
        bool isRead = qel::findCoordinateType (name, found) && qel::setPoint (p, found, values[i].data(), 3);
        benchmark::DoNotOptimize (isRead);
        benchmark::DoNotOptimize (p);
    });
}

void write (benchmark::State& state, qel::CoordinateType type)
{
    const auto values = inputs();
    measure (state, [&] (std::size_t i) {
        Values out{};
        bool isWritten = qel::writePoint ({ values[i][0], values[i][1], values[i][2] }, type, out.data());
        benchmark::DoNotOptimize (isWritten);
        benchmark::DoNotOptimize (out);
    });
}

void registerFormat (qel::CoordinateType type)
{
    const std::string name = qel::nameOfCoordinateType (type);
    auto found = qel::CoordinateType::none;
    if (qel::findCoordinateType (name, found))
        benchmark::RegisterBenchmark (("read " + name).c_str(), read, type);
    if (qel::isWritable (type))
        benchmark::RegisterBenchmark (("write " + name).c_str(), write, type);
}

}

int main (int argc, char** argv)
{
    for (std::int32_t number = 0; number < qel::numCoordinateTypes; ++number)
        registerFormat (static_cast<qel::CoordinateType> (number));
    if (allocations == 0) {
        std::fputs ("registering allocates, yet nothing was counted\n", stderr);
        return 1;
    }
    benchmark::Initialize (&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
