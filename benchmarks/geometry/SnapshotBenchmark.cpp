#include "geometry/OrvaneDspCoordinatesSnapshot.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include <malloc.h>

namespace
{

constexpr std::size_t sources = 64;

/** Typical user snapshots and a temporary file to write them to or read them from. */
struct Saved
{
    explicit Saved (std::int64_t count)
    {
        std::mt19937 random (1);
        std::uniform_real_distribution<float> metres (-10.0F, 10.0F);
        for (std::int64_t i = 0; i < count; ++i) {
            qel::Point3Array points (sources);
            for (auto& point : points)
                point = { metres (random), metres (random), metres (random) };
            store.store ("snapshot " + qel::String (static_cast<int> (i)), points);
        }
    }
    ~Saved() { file.remove(); }

    qel::CoordinatesSnapshotStore store;
    qel::File file{ (std::filesystem::temp_directory_path() / "halcyra snapshots.xml").string() };
};

void WriteSnapshots (benchmark::State& state)
{
    const Saved saved (state.range (0));
    while (state.KeepRunning())
        if (! saved.store.write (saved.file, "", true))
            state.SkipWithError ("not written");
}

void ReadSnapshots (benchmark::State& state)
{
    const Saved saved (state.range (0));
    if (! saved.store.write (saved.file, "", true))
        state.SkipWithError ("not written");
    while (state.KeepRunning()) {
        qel::CoordinatesSnapshotStore store;
        store.read (saved.file);
        benchmark::DoNotOptimize (store);
    }
}

/** Removes one in the middle of many, and stores it again at the end. */
void RemoveOneSnapshot (benchmark::State& state)
{
    Saved saved (state.range (0));
    const auto count = static_cast<int> (state.range (0));
    const qel::Point3Array points (sources);
    int next = count / 2;
    while (state.KeepRunning()) {
        const auto name = "snapshot " + qel::String (next);
        saved.store.remove (name);
        saved.store.store (name, points);
        next = (next + 1) % count;
    }
}

/** In kB, since the last call. */
double peakMemory()
{
    std::ifstream status ("/proc/self/status");
    for (std::string line; std::getline (status, line);)
        if (line.rfind ("VmHWM:", 0) == 0)
            return std::stod (line.substr (6));
    return 0;
}

/** `over_file`: peak memory while reading or writing, above the store's own, relative to the file's size. */
template <typename Work>
void measureMemory (benchmark::State& state, const Saved& saved, Work&& work)
{
    const auto kilobytes = static_cast<double> (saved.file.size()) / 1024;
    while (state.KeepRunning()) {
        malloc_trim (0);
        std::ofstream ("/proc/self/clear_refs") << "5"; // resets the peak
        const double before = peakMemory();
        const double ofStore = work();
        state.counters["over_file"] = (peakMemory() - before - ofStore) / kilobytes;
    }
}

void MemoryOfReading (benchmark::State& state)
{
    const Saved saved (state.range (0));
    if (! saved.store.write (saved.file, "", true))
        state.SkipWithError ("not written");
    const double ofPoints = static_cast<double> (state.range (0)) * sources * sizeof (qel::Point3) / 1024;
    measureMemory (state, saved, [&] {
        qel::CoordinatesSnapshotStore store;
        store.read (saved.file);
        return ofPoints;
    });
}

void MemoryOfWriting (benchmark::State& state)
{
    const Saved saved (state.range (0));
    if (! saved.store.write (saved.file, "", true))
        state.SkipWithError ("not written");
    measureMemory (state, saved, [&] {
        saved.store.write (saved.file, "", true);
        return 0.0;
    });
}

}

BENCHMARK (RemoveOneSnapshot)->Arg (100)->Arg (10000);
BENCHMARK (MemoryOfReading)->Arg (10000)->Iterations (1)->Unit (benchmark::kMillisecond);
BENCHMARK (MemoryOfWriting)->Arg (10000)->Iterations (1)->Unit (benchmark::kMillisecond);
BENCHMARK (WriteSnapshots)->Arg (1000)->Arg (10000)->Unit (benchmark::kMillisecond);
BENCHMARK (ReadSnapshots)->Arg (1000)->Arg (10000)->Unit (benchmark::kMillisecond);

BENCHMARK_MAIN();
