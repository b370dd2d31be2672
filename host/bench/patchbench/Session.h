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

/** A command that could not be carried out; the text is told on standard error. */
struct CommandError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/** One run of the program: a bench, and the commands that work on it. Prints every event on standard output. */
class Session
{
public:
    /** What can be loaded: the entry point of a class, the names of all classes, and how their messages are written. */
    struct Externals
    {
        std::function<bench::Entry (const std::string& className)> find;
        std::function<std::vector<std::string>()> names;
        MessageForms forms;
    };

    struct Settings
    {
        bench::DeferMedium deferMedium = bench::DeferMedium::queue;
        bool trace = false; // prints notifications too
        Externals externals;
    };

    explicit Session (const Settings& settings);

    /** Runs one line and pumps. Throws CommandError. */
    void run (const std::string& line);

    /** True from the command `quit` on. */
    [[nodiscard]] bool isOver() const { return over; }
    void quit() { over = true; }

    /** The box of this name, or a CommandError. */
    bench::Box& box (const std::string& name);

    /** The driver of the windows, or a CommandError where there is none. */
    static bench::WindowDriver& windows();

    /** Loads the external of a class unless that was done before; false if there is none. */
    bool load (const std::string& className);

    [[nodiscard]] const Externals& externals() const { return settings.externals; }

    /** Lets time pass, in milliseconds; waitForWindows() until no window is on the display any more. Both end at
        once when the user interrupts. */
    void wait (int milliseconds);
    void waitForWindows();

    /** Set by a prompt when the user presses Ctrl+C; safe in a signal handler. */
    static void interrupt (bool interrupted);

    /** Writes a line of output. Any thread. */
    static void print (const std::string& line);

    /** Where lines go instead of standard output; null for standard output. Called on the thread that prints. */
    static void setPrinter (std::function<void (const std::string& line)> printer);

private:
    // Outlive the bench, whose last events come while it goes.
    const Settings settings;
    std::set<std::string> openWindows; // names of the boxes whose window is shown; main thread

public:
    bench::Thread thread = bench::Thread::main; // where sends come from
    bench::Bench bench;

private:
    void followWindow (const bench::Event& event);

    bool over = false;
};

}
