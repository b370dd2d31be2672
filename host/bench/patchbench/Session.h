#pragma once
#include "host/bench/Bench.h"
#include "host/bench/WindowDriver.h"
#include <functional>
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
    using FindExternal = std::function<bench::Entry (const std::string& className)>;

    struct Settings
    {
        bench::DeferMedium deferMedium = bench::DeferMedium::queue;
        bool trace = false; // prints notifications too
        FindExternal findExternal;
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

    /** Writes a line of output. Any thread. */
    static void print (const std::string& line);

    /** What a prompt needs to keep its own line apart from the output: a text that goes before every line, and how
        many lines there were so far. */
    static void setLineStart (const char* text);
    static int linesPrinted();

    bench::Thread thread = bench::Thread::main; // where sends come from
    bench::Bench bench;

private:
    FindExternal findExternal;
    bool over = false;
};

}
