#include "host/bench/patchbench/Program.h"
#include "host/bench/patchbench/Prompt.h"
#include <CLI/CLI.hpp>
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
    app.allow_windows_style_options (false); // a path may begin with a slash everywhere
    app.add_option ("--window", options.window, "Where windows go (auto: on the display if there is one)")
        ->transform (CLI::CheckedTransformer (windows))
        ->option_text ("auto|native|offscreen");
    app.add_option ("--defer-medium", options.deferMedium, "What calls deferred with medium priority do")
        ->transform (CLI::CheckedTransformer (modes))
        ->option_text ("queue|now");
    app.add_flag ("--trace", options.trace, "Prints notifications too");
    app.add_option ("FILE", options.files, "Scripts to run, - for standard input; standard input without any");
}

/** Runs lines and tells what could not be carried out, with the place where it stands. */
class Runner
{
public:
    explicit Runner (Session& s) : session (s) {}

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
        std::ifstream file (name);
        if (! file)
            return complain ("cannot be read");
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
        while (! session.isOver() && std::getline (stream, line))
            runLine (line);
    }

    void complain (const std::string& text)
    {
        failed = true;
        std::cout.flush();
        std::cerr << "patchbench: " << source << ":" << lineNumber << ": " << text << std::endl;
    }

    Session& session;
    std::string source;
    int lineNumber = 0;
    bool failed = false;
};

Status runScripts (const Options& options, const Session::FindExternal& findExternal)
{
    Session session ({ options.deferMedium, options.trace, findExternal });
    Runner runner (session);
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
    const auto status = runScripts (options, parts.findExternal);
    bench::setWindowDriver (nullptr);
    std::cout.flush();
    return status;
}

}
