#include "host/bench/MainQueue.h"
#include "host/bench/Console.h"
#include "host/bench/Doze.h"
#include "host/bench/HostCalls.h"
#include "host/bench/Scheduler.h"
#include <algorithm>
#include <utility>

namespace bench
{

namespace
{
/** Limit for calls that keep queueing calls, such as behind an outlet patched back to its own inlet. */
constexpr int longestChain = 5000;

std::atomic<std::thread::id> mainThread{};

std::vector<t_atom> copyOf (std::int16_t argc, const t_atom* argv)
{
    return argc > 0 && argv != nullptr ? std::vector<t_atom> (argv, argv + argc) : std::vector<t_atom>{};
}
}

MainQueue& MainQueue::instance()
{
    static auto& queue = *new MainQueue;
    return queue;
}

void MainQueue::thisIsTheMainThread() { mainThread = std::this_thread::get_id(); }

bool MainQueue::onMainThread()
{
    auto none = std::thread::id();
    if (mainThread.load() == none)
        mainThread.compare_exchange_strong (none, std::this_thread::get_id());
    return mainThread.load() == std::this_thread::get_id();
}

void MainQueue::insert (bool atFront, Call call)
{
    const bool isOurs = onMainThread();
    call.generation = isOurs ? generation + 1 : 0;
    const std::lock_guard<std::mutex> lock (mutex);
    if (call.element != nullptr) {
        if (std::exchange (call.element->isSet, true))
            return;
    }
    calls.insert (atFront ? calls.begin() : calls.end(), std::move (call));
    if (! isOurs)
        wakeMainThread();
}

void MainQueue::push (bool atFront, void* ob, method function, t_symbol* sym, std::vector<t_atom> atoms)
{
    if (function == nullptr)
        return;
    Call call;
    call.ob = ob;
    call.function = function;
    call.sym = sym;
    call.atoms = std::move (atoms);
    insert (atFront, std::move (call));
}

void MainQueue::set (QueueElement& element, bool atFront)
{
    Call call;
    call.ob = element.ob;
    call.function = element.function;
    call.element = &element;
    insert (atFront, std::move (call));
}

void MainQueue::unset (QueueElement& element)
{
    const std::lock_guard<std::mutex> lock (mutex);
    element.isSet = false;
    calls.erase (std::remove_if (calls.begin(), calls.end(), [&] (const Call& c) { return c.element == &element; }),
                 calls.end());
}

bool MainQueue::runOne()
{
    Call call;
    {
        const std::lock_guard<std::mutex> lock (mutex);
        if (calls.empty()) {
            generation = 0;
            overflowTold = false;
            return false;
        }
        call = std::move (calls.front());
        calls.pop_front();
        if (call.element != nullptr)
            call.element->isSet = false;
    }
    if (call.generation > longestChain) {
        if (! std::exchange (overflowTold, true))
            tell (Event::Kind::error, call.ob, "stack overflow");
        return true;
    }
    generation = call.generation;
    if (call.element != nullptr)
        callQelem (call.function, call.ob);
    else
        callDeferred (call.function, call.ob, call.sym, call.atoms);
    generation = 0;
    return true;
}

void MainQueue::drop (const void* ob)
{
    const std::lock_guard<std::mutex> lock (mutex);
    for (auto& call : calls)
        if (call.ob == ob && call.element != nullptr)
            call.element->isSet = false;
    calls.erase (std::remove_if (calls.begin(), calls.end(), [=] (const Call& c) { return c.ob == ob; }), calls.end());
}

void MainQueue::clear()
{
    const std::lock_guard<std::mutex> lock (mutex);
    for (auto& call : calls)
        if (call.element != nullptr)
            call.element->isSet = false;
    calls.clear();
}

}

using namespace bench;

namespace
{
/** Runs at once unless called on the scheduler thread; a third thread also runs it at once, on that thread. */
void* runOrQueue (bool queue, bool atFront, void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv)
{
    auto atoms = copyOf (argc, argv);
    if (queue)
        MainQueue::instance().push (atFront, ob, function, sym, std::move (atoms));
    else if (function != nullptr)
        callDeferred (function, ob, sym, atoms);
    return nullptr;
}
}

void* defer (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv)
{
    return runOrQueue (isr() != 0, true, ob, function, sym, argc, argv);
}

void* defer_medium (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv)
{
    const bool queue = MainQueue::instance().deferMediumBehaviour() == DeferMedium::queue || isr() != 0;
    return runOrQueue (queue, false, ob, function, sym, argc, argv);
}

void* defer_low (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv)
{
    return runOrQueue (true, false, ob, function, sym, argc, argv);
}

void* defer_front (void* ob, method function, t_symbol* sym, std::int16_t argc, t_atom* argv)
{
    return runOrQueue (true, true, ob, function, sym, argc, argv);
}

void* qelem_new (void* ob, method function) { return new QueueElement{ ob, function }; }

void qelem_set (t_qelem* q)
{
    if (q != nullptr)
        MainQueue::instance().set (*static_cast<QueueElement*> (q), false);
}

void qelem_front (t_qelem* q)
{
    if (q != nullptr)
        MainQueue::instance().set (*static_cast<QueueElement*> (q), true);
}

void qelem_unset (t_qelem* q)
{
    if (q != nullptr)
        MainQueue::instance().unset (*static_cast<QueueElement*> (q));
}

void qelem_free (t_qelem* q)
{
    qelem_unset (q);
    delete static_cast<QueueElement*> (q);
}

std::int16_t systhread_ismainthread() { return MainQueue::onMainThread() ? 1 : 0; }
t_clong isr() { return Scheduler::onSchedulerThread() ? 1 : 0; }
