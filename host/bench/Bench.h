#pragma once
#include "host/api/MaxApi.h"
#include "host/bench/Event.h"
#include "host/bench/Words.h"
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace bench
{

/** The entry point of an external, as ext_main; returns 0. */
using Entry = t_clong (*) (void*);

/** What defer_medium does when the main thread calls it; from the scheduler thread it always queues. */
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

/** A box on the bench: an object and the name under which scripts know it. Owned by its Bench. */
struct Box
{
    std::string name;
    t_object* object = nullptr;
};

/** The stand-in host with a patch on it. It loads externals by their entry points, makes boxes, sends messages,
    pumps the queues and records what happens. One at a time in a process, used by one thread, which is the main
    thread while it lives; an external, once loaded, stays for the process, as in Max. */
class Bench
{
public:
    explicit Bench (DeferMedium deferMedium = DeferMedium::queue);

    /** Frees what is left and drops what is queued. */
    ~Bench();

    Bench (const Bench&) = delete;
    Bench& operator= (const Bench&) = delete;

    /** Calls the entry point unless it was called before; an event tells if it returned anything but 0. */
    void load (Entry entry);

    /** Makes a box out of its text, "CLASS ARG ... @attribute value ...". Null, told by an event, if the class is
        unknown or gave no object, or if the name is taken. */
    Box* make (const std::string& name, const std::string& text);
    Box* make (const std::string& name, std::vector<Word> words);
    void free (Box* box);
    [[nodiscard]] Box* find (const std::string& name) const;
    [[nodiscard]] std::vector<std::string> names() const;

    /** Sends a message to the inlet as a patch cord would, "gain 3"; on the scheduler thread, comes back when it has
        been delivered there. Nothing is pumped. */
    void send (Box& box, const std::string& message, Thread thread = Thread::main);
    void send (Box& box, t_symbol* selector, const Atoms& atoms, Thread thread = Thread::main);

    /** A patch cord; false if there is no such outlet, or no such cord. */
    bool connect (Box& from, int outlet, Box& to);
    bool disconnect (Box& from, int outlet, Box& to);

    /** Pumps until idle: the host's queue, then the scheduler's due events, then the GUI; again until all are
        empty. Between hold() and release() it does nothing. */
    void settle();
    void hold();
    void release();

    /** Runs what waits for the main thread now, and waits for no other thread: the scheduler's goes on meanwhile. */
    void pump();

    /** Lets time pass, pumping. The scheduler's clock moves by this alone. */
    void wait (int milliseconds);

    /** Runs something on the scheduler thread: to its end, or while the caller goes on. */
    void runOnScheduler (const std::function<void()>& task);
    void postToScheduler (std::function<void()> task);

    /** What happened since the last call. */
    std::vector<Event> takeEvents();

    /** Gets every event as it happens, on the thread on which it happens, and instead of takeEvents. */
    void setListener (std::function<void (const Event&)> listener);

    /** The answer of the next dialog that has none yet: a path, or nothing for "cancel". */
    void answerDialog (std::optional<std::string> path);

    /** Whether asking for an attribute's property that it has not is an error, or an answer without atoms (as the
        bench does unless told): Max leaves it open, so code has to live with both. */
    void setMissingPropertyIsError (bool isError);

    /** Whether an attribute that is registered as deferred is set on the main thread when the message comes from
        another, or where the message comes from (as the bench does unless told): Max leaves this open as well. */
    void setDeferFlagsAreHonoured (bool areHonoured);

    /** The text that gensym_tr and str_tr give for another. */
    void translate (const std::string& text, const std::string& translation);

private:
    struct Patch;
    std::unique_ptr<Patch> patch;
};

}
