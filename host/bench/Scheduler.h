#pragma once
#include "host/api/MaxApi.h"
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

namespace bench
{

/** The high-priority thread with its clock, in milliseconds. The clock is the bench's: it moves by advance() alone,
    so that what a patch does depends on its own waits and not on the machine. */
class Scheduler
{
public:
    static Scheduler& instance();
    static bool onSchedulerThread();

    void start();
    void stop(); // what is left is forgotten

    /** Runs something at once on the thread; run() comes back when it has ended, post() does not wait. */
    void run (const std::function<void()>& task);
    void post (std::function<void()> task);

    /** Runs something for an object when the clock has come so far. */
    void schedule (int delay, const void* ob, std::function<void()> task);

    void advance (int milliseconds);

    /** In milliseconds; a day if there is none. */
    [[nodiscard]] int untilNextEvent();

    /** Waits until nothing runs and nothing is due. True if anything ran since the last call. */
    bool settle();

    /** Forgets what is scheduled for a freed object. */
    void drop (const void* ob);

    /** While it stands, no event runs but the one that holds it. */
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
    std::multimap<long long, Event> events; // by time; those of one time in order of arrival
    long long now = 0;
    bool busy = false;
    bool stopping = false;
    bool ranSinceSettled = false;
    std::recursive_mutex running; // held while an event runs
    std::thread thread;
};

}
