#pragma once
#include "host/bench/Bench.h"
#include "host/bench/WindowDriver.h"
#include "host/bench/patchbench/MessageForms.h"
#include <atomic>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>

namespace patchbench
{

/** A failed command; the text goes to standard error. */
struct CommandError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/** One run of the program: a bench and the commands on it. Prints every event to standard output. */
class Session
{
public:
    /** What can be loaded: a class's entry point, the names of all classes, and the syntax of their messages. */
    struct Externals
    {
        std::function<bench::Entry (const std::string& className)> find;
        std::function<std::vector<std::string>()> names;
        MessageForms forms;
    };

    struct Settings
    {
        bench::DeferMedium deferMedium = bench::DeferMedium::queue;
        bool trace = false; // print notifications too
        Externals externals;
    };

    explicit Session (const Settings& settings);

    /** Runs one line and pumps. Throws CommandError. */
    void run (const std::string& line);

    /** True after the command `quit`. */
    [[nodiscard]] bool isOver() const { return over; }
    void quit() { over = true; }

    /** The box of this name; throws CommandError if there is none. */
    bench::Box& box (const std::string& name);

    /** The window driver; throws CommandError if there is none. */
    static bench::WindowDriver& windows();

    /** Loads a class's external unless already loaded; false if there is none. */
    bool load (const std::string& className);

    [[nodiscard]] const Externals& externals() const { return settings.externals; }

    /** wait() lets time pass, in milliseconds; waitForWindows() waits until no window is on the display. Both return at
        once when the user interrupts. */
    void wait (int milliseconds);
    void waitForWindows();

    /** Called by a prompt on Ctrl+C; async-signal-safe. */
    static void interrupt (bool interrupted);

    /** Writes a line of output. Any thread. */
    static void print (const std::string& line);

    /** Redirects lines from standard output; null restores it. Called on the printing thread. */
    static void setPrinter (std::function<void (const std::string& line)> printer);

private:
    // Must outlive the bench, which records events while it is destroyed.
    const Settings settings;
    std::set<std::string> openWindows; // names of boxes with a visible window; main thread

public:
    bench::Thread thread = bench::Thread::main; // the thread for sends
    bench::Bench bench;

private:
    void followWindow (const bench::Event& event);

    bool over = false;
};

}
