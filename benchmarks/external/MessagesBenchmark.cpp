#include "ControlBenchmark.h"

#include "host/bench/Words.h"

#include <string>

// Messages from the inlet to the outlet, against a minimal class's deferred message in the same host.

namespace
{

/** A message whose last number goes up and down, so that every one changes something. */
class Moving
{
public:
    explicit Moving (const char* text) : message (bench::messageOf (bench::wordsOf (text))) {}

    void sendTo (ControlBenchmark& bench)
    {
        step = step == 20 ? 0 : step + 1;
        atom_setfloat (&message.atoms.back(), 1 + 0.1 * step);
        bench.send (message.selector, message.atoms);
    }

private:
    bench::Message message;
    int step = 0;
};

void measure (benchmark::State& state, Window window, const char* text)
{
    ControlBenchmark bench (window);
    Moving message (text);
    compare (
        state, [&] { message.sendTo (bench); }, [&] { bench.sendMinimal(); });
}

constexpr const char* source = "source 7 aed 30 10 1.";

BENCHMARK_CAPTURE (measure, parameter_never_opened, Window::never, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measure, parameter_closed, Window::closed, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measure, parameter_open, Window::open, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measure, parameter_scene_open, Window::scene, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measure, decay_never_opened, Window::never, "tr0 1.")->UseManualTime();
BENCHMARK_CAPTURE (measure, decay_closed, Window::closed, "tr0 1.")->UseManualTime();
BENCHMARK_CAPTURE (measure, decay_open, Window::open, "tr0 1.")->UseManualTime();
BENCHMARK_CAPTURE (measure, filter_closed, Window::closed, "room 0 0 0 0 250 4000.")->UseManualTime();
BENCHMARK_CAPTURE (measure, source_never_opened, Window::never, source)->UseManualTime();
BENCHMARK_CAPTURE (measure, source_closed, Window::closed, source)->UseManualTime();
BENCHMARK_CAPTURE (measure, source_open, Window::open, source)->UseManualTime();
BENCHMARK_CAPTURE (measure, source_scene_open, Window::scene, source)->UseManualTime();

std::string repeated (const char* selector, const char* values, int times)
{
    std::string text = selector;
    for (int i = 0; i < times; ++i)
        text += std::string (" ") + values;
    return text;
}

/** All 64 at once; the floor is one of them. */
void sourcesPositions (benchmark::State& state, Window window)
{
    ControlBenchmark bench (window);
    Moving one (source), all (repeated ("sourcespositions", "1. 2. 3.", 64).c_str());
    compare (
        state, [&] { all.sendTo (bench); }, [&] { one.sendTo (bench); });
}
BENCHMARK_CAPTURE (sourcesPositions, closed, Window::closed)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK_CAPTURE (sourcesPositions, scene_open, Window::scene)->UseManualTime()->Unit (benchmark::kMicrosecond);

/** Meters of all sources; shown or not. */
void sourcesLevels (benchmark::State& state, Window window, const char* setting)
{
    ControlBenchmark bench (window);
    bench.send (setting);
    Moving levels (repeated ("sourceslevels", "-20.", 64).c_str());
    compare (
        state, [&] { levels.sendTo (bench); }, [&] { bench.sendMinimal(); });
}
BENCHMARK_CAPTURE (sourcesLevels, closed, Window::closed, "showsourceslevels 1")->UseManualTime();
BENCHMARK_CAPTURE (sourcesLevels, other_page_open, Window::open, "showsourceslevels 1")->UseManualTime();
BENCHMARK_CAPTURE (sourcesLevels, scene_open_hidden, Window::scene, "showsourceslevels 0")->UseManualTime();
BENCHMARK_CAPTURE (sourcesLevels, scene_open, Window::scene, "showsourceslevels 1")->UseManualTime();

/** 64 sources, 4 filters, 20 parameters and the speakers: 89 messages leave, and so many are the floors. */
void bang (benchmark::State& state, Window window)
{
    constexpr double messages = 89;
    ControlBenchmark bench (window);
    compare (
        state, [&] { bench.send ("bang"); }, [&] { bench.sendMinimal(); }, messages);
}
BENCHMARK_CAPTURE (bang, closed, Window::closed)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK_CAPTURE (bang, open, Window::open)->UseManualTime()->Unit (benchmark::kMicrosecond);

}
