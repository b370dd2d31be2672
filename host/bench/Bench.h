#pragma once
#include "host/api/MaxApi.h"
#include "host/bench/Event.h"
#include "host/bench/Words.h"
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace bench
{

/** An external's entry point, such as ext_main; returns 0. */
using Entry = t_clong (*) (void*);

/** What defer_medium does on the main thread; from the scheduler thread it always queues. */
enum class DeferMedium
{
    queue,
    now
};

enum class Thread
{
    main,
    scheduler
};

/** A box on the bench: an object and its name in scripts. Owned by its Bench. */
struct Box
{
    std::string name;
    t_object* object = nullptr;
};

/** The stand-in host with one patch. Loads externals by their entry points, creates boxes, sends messages, pumps the
    queues and records events. One instance per process, on one thread, which is the main thread meanwhile; externals
    stay loaded until the process ends, as in Max. */
class Bench
{
public:
    explicit Bench (DeferMedium deferMedium = DeferMedium::queue);

    /** Frees the remaining boxes and drops queued calls. */
    ~Bench();

    Bench (const Bench&) = delete;
    Bench& operator= (const Bench&) = delete;

    /** Calls the entry point unless already called; records an event if it returns anything but 0. */
    void load (Entry entry);

    /** Creates a box from its text, "CLASS ARG ... @attribute value ...". Returns null, with an event, if the class is
        unknown or returned no object, or if the name is taken. */
    Box* make (const std::string& name, const std::string& text);
    Box* make (const std::string& name, std::vector<Word> words);
    void free (Box* box);
    [[nodiscard]] Box* find (const std::string& name) const;
    [[nodiscard]] std::vector<std::string> names() const;

    /** Sends a message to the inlet as a patch cord would, for example "gain 3"; on the scheduler thread it waits for
        delivery. Does not pump. */
    void send (Box& box, const std::string& message, Thread thread = Thread::main);
    void send (Box& box, t_symbol* selector, const Atoms& atoms, Thread thread = Thread::main);

    /** Adds a patch cord; false if there is no such outlet. disconnect: false if there is no such cord. */
    bool connect (Box& from, int outlet, Box& to);
    bool disconnect (Box& from, int outlet, Box& to);

    /** Pumps until idle: the host's queue, the scheduler's due events, the GUI, and again until all are empty. Does
        nothing between hold() and release(). */
    void settle();
    void hold();
    void release();
    [[nodiscard]] bool isHeld() const;

    /** Runs the main thread's queue without waiting for other threads; the scheduler keeps running. */
    void pump();

    /** Lets time pass, pumping; sleeps while idle. Only this and the next function advance the scheduler's clock. */
    void wait (int milliseconds);

    /** As above, but returns early if a descriptor becomes readable (not on Windows; below 0 for none) or goesOn,
        called after each pump or wake-up of the main thread, returns false. */
    static constexpr int forEver = std::numeric_limits<int>::max();
    void waitFor (int milliseconds, int descriptor, const std::function<bool()>& goesOn);

    /** Runs a task on the scheduler thread: waits for it, or lets the caller continue. */
    void runOnScheduler (const std::function<void()>& task);
    void postToScheduler (std::function<void()> task);

    /** The events since the last call. */
    std::vector<Event> takeEvents();

    /** Receives every event on the thread where it happens, instead of takeEvents. */
    void setListener (std::function<void (const Event&)> listener);

    /** Answers the next unanswered dialog: a path, or nothing for "cancel". */
    void answerDialog (std::optional<std::string> path);

    /** Whether asking for a missing property of an attribute is an error, or returns no atoms (the default): Max does
        not specify it, so code must handle both. */
    void setMissingPropertyIsError (bool isError);

    /** Whether a deferred attribute set from another thread is set on the main thread, or on that thread (the default):
        Max does not specify this either. */
    void setDeferFlagsAreHonoured (bool areHonoured);

    /** Sets the text that gensym_tr and str_tr return for another. */
    void translate (const std::string& text, const std::string& translation);

private:
    struct Patch;
    std::unique_ptr<Patch> patch;
};

}
