#include "host/bench/patchbench/Prompt.h"
#include <deque>
#include <io.h>
#include <iostream>
#include <mutex>
#include <optional>
#include <thread>

namespace patchbench
{

namespace
{
/** Lines read by a separate thread, because reading a console blocks. Never freed: the thread may still be blocked when
    the program ends. */
struct Lines
{
    std::mutex mutex;
    std::deque<std::optional<std::string>> lines; // nullopt: end of input

    std::optional<std::optional<std::string>> next()
    {
        const std::lock_guard<std::mutex> lock (mutex);
        if (lines.empty())
            return std::nullopt;
        auto line = lines.front();
        lines.pop_front();
        return line;
    }

    void add (std::optional<std::string> line)
    {
        const std::lock_guard<std::mutex> lock (mutex);
        lines.push_back (std::move (line));
    }
};
}

bool isInteractive() { return _isatty (0) != 0; }

void runPrompt (Session& session, const std::function<void (const std::string&)>& runLine)
{
    constexpr int pause = 10;
    auto& read = *new Lines;
    std::thread ([&read] {
        std::string line;
        while (std::getline (std::cin, line))
            read.add (line);
        read.add (std::nullopt);
    }).detach();
    std::cout << "> " << std::flush;
    while (! session.isOver()) {
        const auto line = read.next();
        if (! line) {
            session.bench.wait (pause);
            continue;
        }
        if (! *line)
            return;
        runLine (**line);
        std::cout << "> " << std::flush;
    }
}

}
