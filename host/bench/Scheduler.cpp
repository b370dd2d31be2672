#include "host/bench/Scheduler.h"
#include "host/bench/Doze.h"
#include "host/bench/HostCalls.h"
#include "host/bench/MainQueue.h"
#include <algorithm>
#include <utility>
#include <vector>

namespace bench
{

namespace
{
thread_local bool isSchedulerThread = false;
}

Scheduler& Scheduler::instance()
{
    static auto& scheduler = *new Scheduler;
    return scheduler;
}

bool Scheduler::onSchedulerThread() { return isSchedulerThread; }

void Scheduler::start()
{
    stopping = false;
    thread = std::thread ([this] { loop(); });
}

void Scheduler::stop()
{
    {
        const std::lock_guard<std::mutex> lock (mutex);
        stopping = true;
    }
    changed.notify_all();
    thread.join();
    events.clear();
}

void Scheduler::loop()
{
    isSchedulerThread = true;
    std::unique_lock<std::mutex> lock (mutex);
    for (;;) {
        changed.wait (lock, [this] { return stopping || hasDue(); });
        if (stopping)
            return;
        busy = true;
        lock.unlock();
        {
            // Locked before the event leaves the list: whoever pauses the scheduler may still drop it.
            const std::lock_guard<std::recursive_mutex> turn (running);
            lock.lock();
            Event event;
            if (hasDue()) {
                event = std::move (events.begin()->second);
                events.erase (events.begin());
            }
            lock.unlock();
            if (event.task)
                event.task();
        }
        lock.lock();
        busy = false;
        ranSinceSettled = true;
        changed.notify_all();
    }
}

void Scheduler::run (const std::function<void()>& task)
{
    if (isSchedulerThread)
        return task();
    bool done = false;
    post ([&] {
        task();
        const std::lock_guard<std::mutex> lock (mutex);
        done = true;
        changed.notify_all();
    });
    std::unique_lock<std::mutex> lock (mutex);
    changed.wait (lock, [&] { return done; });
}

void Scheduler::post (std::function<void()> task) { schedule (0, nullptr, std::move (task)); }

void Scheduler::schedule (int delay, const void* ob, std::function<void()> task)
{
    {
        const std::lock_guard<std::mutex> lock (mutex);
        events.emplace (now + std::max (delay, 0), Event{ ob, std::move (task) });
    }
    changed.notify_all();
    if (! MainQueue::onMainThread())
        wakeMainThread(); // its sleep may extend beyond this event
}

int Scheduler::untilNextEvent()
{
    constexpr long long aDay = 24LL * 60 * 60 * 1000;
    const std::lock_guard<std::mutex> lock (mutex);
    return static_cast<int> (events.empty() ? aDay : std::clamp (events.begin()->first - now, 0LL, aDay));
}

void Scheduler::advance (int milliseconds)
{
    {
        const std::lock_guard<std::mutex> lock (mutex);
        now += milliseconds;
        if (! hasDue())
            return;
    }
    changed.notify_all();
}

bool Scheduler::settle()
{
    std::unique_lock<std::mutex> lock (mutex);
    changed.wait (lock, [this] { return ! busy && ! hasDue(); });
    return std::exchange (ranSinceSettled, false);
}

void Scheduler::drop (const void* ob)
{
    const std::lock_guard<std::mutex> lock (mutex);
    for (auto event = events.begin(); event != events.end();)
        event = event->second.ob == ob ? events.erase (event) : std::next (event);
}

}

using namespace bench;

namespace
{
std::vector<t_atom> copyOf (std::int16_t argc, const t_atom* argv)
{
    return argc > 0 && argv != nullptr ? std::vector<t_atom> (argv, argv + argc) : std::vector<t_atom>{};
}
}

void schedule_delay (void* ob, method function, t_clong delay, t_symbol* sym, std::int16_t argc, t_atom* argv)
{
    if (function == nullptr)
        return;
    Scheduler::instance().schedule (
        delay, ob, [=, atoms = copyOf (argc, argv)]() mutable { callDeferred (function, ob, sym, atoms); });
}

void schedule_defer (void* ob, method function, t_clong delay, t_symbol* sym, std::int16_t argc, t_atom* argv)
{
    if (function == nullptr)
        return;
    Scheduler::instance().schedule (delay, ob, [=, atoms = copyOf (argc, argv)]() mutable {
        defer_low (ob, function, sym, static_cast<std::int16_t> (atoms.size()), atoms.data());
    });
}
