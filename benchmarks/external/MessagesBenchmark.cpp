#include "ControlBenchmark.h"

#include "host/bench/Words.h"

#include <cmath>
#include <string>

// Messages from inlet to outlet, relative to a minimal class in the same host: a parameter to an attribute, a message
// to a deferred message.

namespace
{

/** A message whose last number alternates, so that each one changes something. */
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

/** A parameter is an attribute, so its floor is an attribute in a host with the same windows. */
void measureParameter (benchmark::State& state, Window window, const char* text)
{
    ControlBenchmark bench (window);
    Moving message (text);
    compare (
        state, [&] { message.sendTo (bench); }, [&] { bench.sendMinimalAttribute(); });
}

constexpr const char* source = "source 7 aed 30 10 1.";

BENCHMARK_CAPTURE (measureParameter, parameter_never_opened, Window::never, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measureParameter, parameter_closed, Window::closed, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measureParameter, parameter_open, Window::open, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measureParameter, parameter_scene_open, Window::scene, "gain 1.")->UseManualTime();
BENCHMARK_CAPTURE (measureParameter, decay_never_opened, Window::never, "tr0 1.")->UseManualTime();
BENCHMARK_CAPTURE (measureParameter, decay_closed, Window::closed, "tr0 1.")->UseManualTime();
BENCHMARK_CAPTURE (measureParameter, decay_open, Window::open, "tr0 1.")->UseManualTime();
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

/** The positions of all 64 on a visible circle, rotated by an angle in radians. */
bench::Message circle (double turn)
{
    std::string text = "sourcespositions";
    for (int i = 0; i < 64; ++i)
        text += " " + std::to_string (0.8 * std::cos (turn + 0.1 * i)) + " " +
                std::to_string (0.8 * std::sin (turn + 0.1 * i)) + " 0.";
    return bench::messageOf (bench::wordsOf (text));
}

/** Moves all 64 at once, all visible; the floor is one of them. */
void sourcesPositions (benchmark::State& state, Window window)
{
    ControlBenchmark bench (window);
    Moving one (source);
    const bench::Message places[] = { circle (0), circle (0.05) };
    std::size_t turn = 0;
    const auto moveAll = [&] {
        turn = 1 - turn;
        bench.send (places[turn].selector, places[turn].atoms);
    };
    compare (state, moveAll, [&] { one.sendTo (bench); });
}
BENCHMARK_CAPTURE (sourcesPositions, closed, Window::closed)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK_CAPTURE (sourcesPositions, scene_open, Window::scene)->UseManualTime()->Unit (benchmark::kMicrosecond);

/** Levels of all sources; shown or not. */
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

/** 64 sources, 4 filters, 20 parameters and the speakers: 89 messages, as many as the floor sends. */
void bang (benchmark::State& state, Window window)
{
    constexpr int messages = 89;
    ControlBenchmark bench (window);
    compare (
        state, [&] { bench.send ("bang"); }, [&] { bench.sendMinimalMany (messages); });
}
BENCHMARK_CAPTURE (bang, closed, Window::closed)->UseManualTime()->Unit (benchmark::kMicrosecond);
BENCHMARK_CAPTURE (bang, open, Window::open)->UseManualTime()->Unit (benchmark::kMicrosecond);

}
