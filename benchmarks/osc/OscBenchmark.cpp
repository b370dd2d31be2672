#include "osc/OrvaneDspOscMessage.h"
#include "osc/OrvaneDspOscPattern.h"

#include <benchmark/benchmark.h>
#include <string>

namespace
{

/** Matches a message against a handler's row of fixed addresses. */
void rowOfAddresses (benchmark::State& state)
{
    const char* const row[] = { "/numdelays", "/min", "/max", "/distr", "/sum", "/minmax", "/minsum" };
    const qel::OSCMessage message (qel::String ("/minsum"));
    for ([[maybe_unused]] auto _ : state)
        for (const char* const address : row)
            benchmark::DoNotOptimize (message.matches (address));
}

/** A pattern of many stars against a text that nearly matches: linear in the text. */
void manyStars (benchmark::State& state)
{
    const qel::String text (std::string (static_cast<std::size_t> (state.range (0)), 'a'));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize (qel::matchOscPattern ("*a*a*a*a*a*a*a*b", text));
}

}

BENCHMARK (rowOfAddresses);
BENCHMARK (manyStars)->Arg (1'000)->Arg (16'000);

BENCHMARK_MAIN();
