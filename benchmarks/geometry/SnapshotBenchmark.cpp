#include "geometry/OrvaneDspCoordinatesSnapshot.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

namespace
{

constexpr std::size_t sources = 64;

/** Snapshots as a user's, to be written to or read from a file that goes with them. */
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

}

BENCHMARK (WriteSnapshots)->Arg (1000)->Arg (10000)->Unit (benchmark::kMillisecond);
BENCHMARK (ReadSnapshots)->Arg (1000)->Arg (10000)->Unit (benchmark::kMillisecond);

BENCHMARK_MAIN();
