#pragma once
#include "external/HalcyraControl.h"
#include "host/bench/Bench.h"
#include "host/bench/Inspect.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

/** Where the window of the measured object is. */
enum class Window
{
    never,
    closed, // was open, and hides
    open,
    scene // open, and shows the scene's page
};

/** An object with 64 sources and 64 speakers on the bench, its window in memory, and beside it a minimal class that
    only defers and sends one message. */
class ControlBenchmark
{
public:
    explicit ControlBenchmark (Window window = Window::never);

    /** Sends a message and pumps until all that it caused is over, repaints included. */
    void send (t_symbol* selector, const bench::Atoms& atoms);
    void send (const char* text);

    /** The floor: the minimal class's deferred message, in a host without windows to pump. */
    void sendMinimal();

    /** The floor of an attribute: the minimal class's `level`, in this very host with its windows. */
    void sendMinimalAttribute();

    /** The floor of an answer of many messages: the minimal class sends so many. */
    void sendMinimalMany (int messages);

    [[nodiscard]] t_halcyra_control& record() const;

    bench::Bench patch;
    bench::Box* box = nullptr;
    bench::Box* minimal = nullptr;

private:
    void moveValue();

    bench::Atoms value = bench::Atoms (1);
    double turn = 0;
};

inline double seconds()
{
    return std::chrono::duration<double> (std::chrono::steady_clock::now().time_since_epoch()).count();
}

/** Draws what is out of date in the windows, as a window system asks for from time to time. */
void paintWindows();

/** Operator new so far. */
long allocations();

/** The middle one, which a busy machine does not shift as it does a mean. */
double median (std::vector<double>& times);

/** Does the work and its floor in turn. The columns, of medians: `ratio` of their times; both times in
    microseconds; and in the mean the work's allocations less the floor's. */
template <typename Work, typename Floor>
void compare (benchmark::State& state, Work&& work, Floor&& floor)
{
    std::vector<double> workTimes, floorTimes;
    long made = 0;
    for ([[maybe_unused]] const auto turn : state) {
        const auto before = allocations();
        const double start = seconds();
        floor();
        const double middle = seconds();
        const auto between = allocations();
        work();
        const double end = seconds();
        made += (allocations() - between) - (between - before);
        floorTimes.push_back (middle - start);
        workTimes.push_back (end - middle);
        state.SetIterationTime (end - middle);
    }
    const auto workTime = median (workTimes), floorTime = median (floorTimes);
    state.counters["ratio"] = workTime / floorTime;
    state.counters["work_us"] = workTime * 1e6;
    state.counters["floor_us"] = floorTime * 1e6;
    state.counters["allocations"] = static_cast<double> (made) / static_cast<double> (state.iterations());
}
