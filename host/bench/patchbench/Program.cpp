#include "host/bench/patchbench/Program.h"
#include "host/bench/patchbench/Prompt.h"
#include "host/bench/patchbench/Script.h"
#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace patchbench
{

namespace
{
struct Options
{
    WindowPlace window = WindowPlace::automatic;
    bench::DeferMedium deferMedium = bench::DeferMedium::queue;
    bool trace = false;
    bool echo = false;
    std::vector<std::string> files;
};

enum Status : int
{
    good = 0,
    commandFailed = 1,
    unusableOptions = 2
};

void describe (CLI::App& app, Options& options)
{
    const std::map<std::string, WindowPlace> windows{ { "auto", WindowPlace::automatic },
                                                      { "native", WindowPlace::native },
                                                      { "offscreen", WindowPlace::offscreen } };
    const std::map<std::string, bench::DeferMedium> modes{ { "queue", bench::DeferMedium::queue },
                                                           { "now", bench::DeferMedium::now } };
    app.allow_windows_style_options (false); // a path may begin with a slash on every platform
    app.add_option ("--window", options.window, "Where windows go (auto: on the display if there is one)")
        ->transform (CLI::CheckedTransformer (windows))
        ->option_text ("auto|native|offscreen");
    app.add_option ("--defer-medium", options.deferMedium, "What calls deferred with medium priority do")
        ->transform (CLI::CheckedTransformer (modes))
        ->option_text ("queue|now");
    app.add_flag ("--trace", options.trace, "Prints notifications too");
    app.add_flag ("--echo", options.echo, "Prints each line of a script before what it causes");
    app.set_version_flag ("--version", "patchbench " PATCHBENCH_VERSION);
    app.add_option (
        "FILE", options.files,
        "Scripts to run, - for standard input; standard input without any. With - last, a prompt follows the "
        "scripts and their windows stay; so they do with a last command `wait`");
}

/** Runs lines and reports failed commands with their location. */
class Runner
{
public:
    Runner (Session& s, bool echoesScripts) : session (s), echo (echoesScripts) {}

    void runLine (const std::string& line)
    {
        ++lineNumber;
        try {
            session.run (line);
        } catch (const CommandError& error) {
            complain (error.what());
        }
    }

    void runFile (const std::string& name)
    {
        start (name);
        const auto complaint = complaintAbout (name);
        std::ifstream file (std::filesystem::u8path (name), std::ios::binary);
        if (! complaint.empty() || ! file)
            return complain (complaint.empty() ? "cannot be read" : complaint);
        runStream (file);
    }

    void runStandardInput()
    {
        start ("stdin");
        if (isInteractive())
            runPrompt (session, [this] (const std::string& line) { runLine (line); });
        else
            runStream (std::cin);
    }

    [[nodiscard]] Status status() const { return failed ? commandFailed : good; }

private:
    void start (const std::string& name)
    {
        source = name;
        lineNumber = 0;
    }

    void runStream (std::istream& stream)
    {
        std::string line;
        while (! session.isOver() && std::getline (stream, line)) {
            const auto complaint = lineNumber == 0 ? removeByteOrderMark (line) : std::string();
            if (! complaint.empty())
                complainAt (1, complaint);
            if (! isText (line))
                return complainAt (lineNumber + 1, "this is no text; the rest is passed over");
            if (echo)
                Session::print (echoOf (line));
            runLine (line);
        }
    }

    void complain (const std::string& text) { complainAt (lineNumber, text); }

    void complainAt (int line, const std::string& text)
    {
        failed = true;
        std::cout.flush();
        std::cerr << "patchbench: " << source << ":" << line << ": " << text << std::endl;
    }

    Session& session;
    const bool echo;
    std::string source;
    int lineNumber = 0;
    bool failed = false;
};

Status runScripts (const Options& options, const Session::Externals& externals)
{
    Session session ({ options.deferMedium, options.trace, externals });
    Runner runner (session, options.echo);
    const std::string standardInput = "-";
    for (const auto& file : options.files.empty() ? std::vector{ standardInput } : options.files) {
        if (session.isOver())
            break;
        if (file == standardInput)
            runner.runStandardInput();
        else
            runner.runFile (file);
    }
    return runner.status();
}
}

int run (int argc, const char* const* argv, const Parts& parts)
{
    CLI::App app ("The object on a bench: reads commands, prints what the object does.", "patchbench");
    Options options;
    describe (app, options);
    try {
        app.parse (argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit (error) == 0 ? good : unusableOptions;
    }
    std::unique_ptr<bench::WindowDriver> windows;
    if (parts.makeWindows)
        windows = parts.makeWindows (options.window);
    bench::setWindowDriver (windows.get());
    const auto status = runScripts (options, parts.externals);
    bench::setWindowDriver (nullptr);
    std::cout.flush();
    return status;
}

}
