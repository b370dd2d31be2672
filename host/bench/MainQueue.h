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

/** What qelem_new makes. */
struct QueueElement
{
    void* ob = nullptr;
    method function = nullptr;
    bool isSet = false; // guarded by the queue
};

/** The low-priority queue: calls that wait for the main thread. Filled from any thread, emptied by the bench. */
class MainQueue
{
public:
    static MainQueue& instance();

    /** True on the thread that made the bench; before the first bench on the one that asked first. */
    static bool onMainThread();
    static void thisIsTheMainThread();

    void setDeferMedium (DeferMedium behaviour) { deferMedium = behaviour; }
    [[nodiscard]] DeferMedium deferMediumBehaviour() const { return deferMedium; }

    void push (bool atFront, void* ob, method function, t_symbol* sym, std::vector<t_atom> atoms);

    void set (QueueElement& element, bool atFront);
    void unset (QueueElement& element);

    /** Runs the first call; false if there was none. Main thread. */
    bool runOne();

    /** Forgets what waits for a freed object. */
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
        int generation = 0; // how many queued calls stand behind this one in a row
    };

    void insert (bool atFront, Call call);

    std::mutex mutex;
    std::deque<Call> calls;
    std::atomic<DeferMedium> deferMedium{ DeferMedium::queue };
    int generation = 0;        // of the call that runs; main thread
    bool overflowTold = false; // main thread
};

}
