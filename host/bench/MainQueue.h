#pragma once
#include "host/api/MaxApi.h"
#include "host/bench/Bench.h"
#include <atomic>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace bench
{

/** Created by qelem_new. */
struct QueueElement
{
    void* ob = nullptr;
    method function = nullptr;
    bool isSet = false; // guarded by the queue
};

/** The low-priority queue of calls for the main thread. Filled from any thread, emptied by the bench. */
class MainQueue
{
public:
    static MainQueue& instance();

    /** True on the thread that created the bench; before the first bench, on the first thread to call this. */
    static bool onMainThread();
    static void thisIsTheMainThread();

    void setDeferMedium (DeferMedium behaviour) { deferMedium = behaviour; }
    [[nodiscard]] DeferMedium deferMediumBehaviour() const { return deferMedium; }

    void push (bool atFront, void* ob, method function, t_symbol* sym, std::vector<t_atom> atoms);

    void set (QueueElement& element, bool atFront);
    void unset (QueueElement& element);

    /** Runs the first call; false if the queue is empty. Main thread. */
    bool runOne();

    /** Drops pending calls for a freed object. */
    void drop (const void* ob);
    void clear();

private:
    struct Call
    {
        void* ob = nullptr;
        method function = nullptr;
        t_symbol* sym = nullptr;
        std::vector<t_atom> atoms;
        QueueElement* element = nullptr;
        int generation = 0; // length of the chain of queued calls that led to this one
    };

    void insert (bool atFront, Call call);

    std::mutex mutex;
    std::deque<Call> calls;
    std::atomic<DeferMedium> deferMedium{ DeferMedium::queue };
    int generation = 0;        // of the running call; main thread
    bool overflowTold = false; // main thread
};

}
