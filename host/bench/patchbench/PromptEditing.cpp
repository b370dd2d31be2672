#include "host/bench/patchbench/Completion.h"
#include "host/bench/patchbench/Prompt.h"
#include <cstdlib>
#include <cstring>
#include <editline/readline.h>
#include <iostream>
#include <unistd.h>
#include <utility>

namespace patchbench
{

namespace
{
/** libedit's callbacks carry no context, so the prompt that reads is kept here; there is never more than one. */
struct Prompt
{
    Session* session = nullptr;
    std::function<void (const std::string&)> runLine;
    std::vector<std::string> completions;
    bool ended = false;
};

Prompt* current = nullptr;

constexpr auto* text = "> ";
constexpr auto* clearLine = "\r\x1b[K"; // an event may come while a line is being typed

char* nextCompletion (const char*, int index)
{
    const auto& all = current->completions;
    const auto i = static_cast<std::size_t> (index);
    return i < all.size() ? strdup (all[i].c_str()) : nullptr;
}

char** complete (const char* word, int, int end)
{
    const std::string line (rl_line_buffer, static_cast<std::size_t> (end));
    current->completions = completionsOf (*current->session, line);
    rl_attempted_completion_over = 1; // never fall back to file names
    return rl_completion_matches (word, nextCompletion);
}

void takeLine (char* line)
{
    if (line == nullptr) {
        current->ended = true;
        std::cout << std::endl;
        return;
    }
    if (*line != 0)
        add_history (line);
    current->runLine (line);
    std::cout.flush();
    std::free (line);
    if (current->session->isOver())
        current->ended = true;
}

std::string historyFile()
{
    const auto* home = std::getenv ("HOME");
    return home == nullptr ? std::string() : std::string (home) + "/.patchbench_history";
}

}

bool isInteractive() { return isatty (STDIN_FILENO) != 0; }

void runPrompt (Session& session, const std::function<void (const std::string&)>& runLine)
{
    Prompt prompt{ &session, runLine, {}, false };
    current = &prompt;
    char breaks[] = " \t";
    rl_basic_word_break_characters = breaks;
    rl_attempted_completion_function = complete;
    using_history();
    const auto history = historyFile();
    if (! history.empty())
        read_history (history.c_str());
    rl_callback_handler_install (text, takeLine);
    Session::setLineStart (clearLine);
    auto shown = Session::linesPrinted();
    const auto showLine = [&] {
        std::cout.flush();
        const auto printed = Session::linesPrinted();
        if (std::exchange (shown, printed) != printed && ! prompt.ended)
            rl_forced_update_display();
    };
    while (! prompt.ended) {
        rl_prep_terminal (1); // libedit forgets it behind each line
        session.bench.waitForInput (STDIN_FILENO, showLine);
        rl_callback_read_char();
        showLine();
    }
    Session::setLineStart ("");
    rl_callback_handler_remove();
    rl_deprep_terminal();
    if (! history.empty())
        write_history (history.c_str());
    current = nullptr;
}

}
