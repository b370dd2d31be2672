#pragma once
#include "external/HalcyraControl.h"
#include "host/bench/Bench.h"
#include "host/bench/Inspect.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

/** State of the measured object's window. */
enum class Window
{
    never,
    closed, // was opened, and is hidden
    open,
    scene // open, showing the scene's page
};

/** An object with 64 sources and 64 speakers on the bench, its window in memory, plus a minimal class that only defers
    and sends one message. */
class ControlBenchmark
{
public:
    explicit ControlBenchmark (Window window = Window::never);

    /** Sends a message and pumps until everything it caused is done, including repaints. */
    void send (t_symbol* selector, const bench::Atoms& atoms);
    void send (const char* text);

    /** Floor: the minimal class's deferred message, in a host without windows to pump. */
    void sendMinimal();

    /** Floor of an attribute: the minimal class's `level`, in the same host with its windows. */
    void sendMinimalAttribute();

    /** Floor of an answer of many messages: the minimal class sends this many. */
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

/** Paints the windows' invalid areas, as a window system requests from time to time. */
void paintWindows();

/** Calls of operator new so far. */
long allocations();

/** The median, which a busy machine shifts less than a mean. */
double median (std::vector<double>& times);

/** Alternates the work and its floor. Columns: `ratio` of their median times; both median times in microseconds; and
    the mean of the work's allocations minus the floor's. */
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
