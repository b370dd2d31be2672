#include "ControlBenchmark.h"

#include "gui/verb/HalcyraComponent.h"

#include <ctime>

// An object's creation and state, each relative to the least it requires.

namespace
{

void createAndFree (benchmark::State& state, const char* text)
{
    ControlBenchmark bench;
    const auto makeAndFree = [&] (const char* what) {
        auto* made = bench.patch.make ("made", what);
        bench.patch.settle();
        bench.patch.free (made);
        bench.patch.settle();
    };
    compare (
        state, [&] { makeAndFree (text); }, [&] { makeAndFree ("bench.minimal"); });
}
BENCHMARK_CAPTURE (createAndFree, defaults, "halcyra~.control")->UseManualTime()->Unit (benchmark::kMillisecond);
BENCHMARK_CAPTURE (createAndFree, largest, "halcyra~.control @numsources 64 @numspeakers 64")
    ->UseManualTime()
    ->Unit (benchmark::kMillisecond);

/** Draws the whole component once: the least that any window does. */
void drawFrame (ControlBenchmark& bench, juce::Image& frame)
{
    juce::Graphics g (frame);
    bench.record().component->paintEntireComponent (g, true);
}

/** Opens the window of a prepared object; `ratio` is relative to one frame of the page that it shows. */
template <typename Prepare, typename Open>
void measureOpen (benchmark::State& state, ControlBenchmark& shown, Prepare&& prepare, Open&& open)
{
    juce::Image frame (juce::Image::RGB, 930, 440, true, juce::SoftwareImageType());
    std::vector<double> openTimes, frameTimes;
    for ([[maybe_unused]] const auto turn : state) {
        prepare();
        const double start = seconds();
        open();
        const double middle = seconds();
        drawFrame (shown, frame);
        frameTimes.push_back (seconds() - middle);
        openTimes.push_back (middle - start);
        state.SetIterationTime (middle - start);
    }
    state.counters["ratio"] = median (openTimes) / median (frameTimes);
}

void firstOpen (benchmark::State& state)
{
    ControlBenchmark bench (Window::open);
    bench::Box* made = nullptr;
    const auto makeAnother = [&] {
        bench.patch.free (made);
        made = bench.patch.make ("made", "halcyra~.control @numsources 64 @numspeakers 64");
        bench.patch.settle();
    };
    const auto open = [&] {
        bench.patch.send (*made, "open");
        bench.patch.settle();
        paintWindows();
    };
    measureOpen (state, bench, makeAnother, open);
}
BENCHMARK (firstOpen)->UseManualTime()->Iterations (50)->Unit (benchmark::kMillisecond);

void laterOpen (benchmark::State& state)
{
    ControlBenchmark bench (Window::open);
    measureOpen (
        state, bench, [&] { bench.send ("wclose"); }, [&] { bench.send ("open"); });
}
BENCHMARK (laterOpen)->UseManualTime()->Unit (benchmark::kMillisecond);

double processorSeconds()
{
    timespec now{};
    clock_gettime (CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double> (now.tv_sec) + static_cast<double> (now.tv_nsec) * 1e-9;
}

/** An idle second: share of a processor, with the window open and never opened. */
void idle (benchmark::State& state)
{
    const auto share = [] (Window window) {
        ControlBenchmark bench (window);
        paintWindows();
        const double start = processorSeconds();
        bench.patch.wait (1000);
        return 100 * (processorSeconds() - start);
    };
    double without = 0, with = 0;
    for ([[maybe_unused]] const auto turn : state) {
        without += share (Window::never);
        with += share (Window::open);
    }
    const auto turns = static_cast<double> (state.iterations());
    state.counters["never_opened_percent"] = without / turns;
    state.counters["open_percent"] = with / turns;
}
BENCHMARK (idle)->Iterations (3)->Unit (benchmark::kMillisecond);

/** Floor of everything that loops over the attributes: the host reads, or sets, each of them once. */
void readEach (ControlBenchmark& bench)
{
    for (const auto& name : bench::visibleAttributes (*bench.box))
        benchmark::DoNotOptimize (bench::attributeOf (*bench.box, name));
}

void dump (benchmark::State& state)
{
    ControlBenchmark bench;
    compare (
        state, [&] { bench.send ("dump"); }, [&] { readEach (bench); });
}
BENCHMARK (dump)->UseManualTime()->Unit (benchmark::kMicrosecond);

void getvalueof (benchmark::State& state)
{
    ControlBenchmark bench;
    compare (
        state, [&] { benchmark::DoNotOptimize (bench::stateOf (*bench.box)); }, [&] { readEach (bench); });
}
BENCHMARK (getvalueof)->UseManualTime()->Unit (benchmark::kMicrosecond);

void setvalueof (benchmark::State& state)
{
    ControlBenchmark bench;
    const auto names = bench::visibleAttributes (*bench.box);
    const auto values = bench::stateOf (*bench.box).value_or (bench::Atoms());
    const auto restore = [&] {
        bench::setState (*bench.box, values);
        bench.patch.settle();
    };
    const auto setEach = [&] {
        for (const auto& name : names)
            bench::setAttribute (*bench.box, name, *bench::attributeOf (*bench.box, name));
        bench.patch.settle();
    };
    compare (state, restore, setEach);
}
BENCHMARK (setvalueof)->UseManualTime()->Unit (benchmark::kMicrosecond);

}
