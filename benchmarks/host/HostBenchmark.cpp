#include "MinimalClass.h"
#include "host/bench/Bench.h"
#include <benchmark/benchmark.h>

namespace
{
/** A patch that discards its events. */
struct QuietPatch
{
    QuietPatch()
    {
        patch.load (minimal_main);
        patch.setListener ([] (const bench::Event&) {});
    }

    bench::Bench patch;
};

void sendThrough (benchmark::State& state, const char* selector)
{
    QuietPatch quiet;
    auto& box = *quiet.patch.make ("a", "bench.minimal");
    bench::Atoms atoms (1);
    double value = 0;
    for ([[maybe_unused]] auto _ : state) {
        value = value == 0 ? 1 : 0;
        atom_setfloat (atoms.data(), value);
        quiet.patch.send (box, gensym (selector), atoms);
        quiet.patch.settle();
    }
}

void messageDefersAndSends (benchmark::State& state) { sendThrough (state, "gain"); }
BENCHMARK (messageDefersAndSends);

void attributeDefersAndSends (benchmark::State& state) { sendThrough (state, "level"); }
BENCHMARK (attributeDefersAndSends);

void createAndFree (benchmark::State& state)
{
    QuietPatch quiet;
    for ([[maybe_unused]] auto _ : state)
        quiet.patch.free (quiet.patch.make ("a", "bench.minimal"));
}
BENCHMARK (createAndFree);
}

BENCHMARK_MAIN();
