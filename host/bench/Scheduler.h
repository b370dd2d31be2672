#pragma once
#include "host/api/MaxApi.h"
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

namespace bench
{

/** The high-priority thread and its clock in milliseconds. Only advance() moves the clock, so that a patch depends on
    its own waits and not on the machine. */
class Scheduler
{
public:
    static Scheduler& instance();
    static bool onSchedulerThread();

    void start();
    void stop(); // drops pending events

    /** Runs a task on the thread at once; run() waits for it, post() does not. */
    void run (const std::function<void()>& task);
    void post (std::function<void()> task);

    /** Runs a task for an object after a delay on the clock. */
    void schedule (int delay, const void* ob, std::function<void()> task);

    void advance (int milliseconds);

    /** In milliseconds; a day if there is none. */
    [[nodiscard]] int untilNextEvent();

    /** Waits until nothing is running or due. Returns whether anything ran since the last call. */
    bool settle();

    /** Drops a freed object's scheduled events. */
    void drop (const void* ob);

    /** While it exists, no event runs except the one that holds it. */
    struct Pause
    {
        Pause() : lock (instance().running) {}
        std::lock_guard<std::recursive_mutex> lock;
    };

private:
    struct Event
    {
        const void* ob = nullptr;
        std::function<void()> task;
    };

    void loop();
    [[nodiscard]] bool hasDue() const { return ! events.empty() && events.begin()->first <= now; }

    std::mutex mutex;
    std::condition_variable changed;
    std::multimap<long long, Event> events; // by time, then in order of arrival
    long long now = 0;
    bool busy = false;
    bool stopping = false;
    bool ranSinceSettled = false;
    std::recursive_mutex running; // held while an event runs
    std::thread thread;
};

}
