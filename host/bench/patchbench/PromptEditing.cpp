#include "host/bench/Doze.h"
#include "host/bench/patchbench/Completion.h"
#include "host/bench/patchbench/Prompt.h"
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <histedit.h>
#include <iostream>
#include <mutex>
#include <unistd.h>
#include <utility>
#include <vector>

namespace patchbench
{

namespace
{
volatile std::sig_atomic_t interruptions = 0; // Ctrl+C
volatile std::sig_atomic_t sizeChanges = 0;
volatile std::sig_atomic_t resumptions = 0; // continued after Ctrl+Z
volatile std::sig_atomic_t endings = 0;     // hangup or termination requests

void onSignal (int signal)
{
    if (signal == SIGINT) {
        interruptions = 1;
        Session::interrupt (true);
    } else if (signal == SIGWINCH)
        sizeChanges = 1;
    else if (signal == SIGCONT)
        resumptions = 1;
    else {
        endings = 1;
        Session::interrupt (true);
    }
    bench::wakeMainThread();
}

/** Handles a terminal's signals for its lifetime. */
class Signals
{
public:
    Signals()
    {
        struct sigaction action = {};
        action.sa_handler = onSignal;
        for (std::size_t i = 0; i < count; ++i)
            sigaction (numbers[i], &action, &before[i]);
    }
    ~Signals()
    {
        for (std::size_t i = 0; i < count; ++i)
            sigaction (numbers[i], &before[i], nullptr);
    }
    Signals (const Signals&) = delete;
    Signals& operator= (const Signals&) = delete;

private:
    static constexpr int numbers[] = { SIGINT, SIGWINCH, SIGCONT, SIGTERM, SIGHUP };
    static constexpr std::size_t count = std::size (numbers);
    struct sigaction before[count] = {};
};

std::wstring wide (const std::string& text)
{
    std::wstring result;
    std::mbstate_t state{};
    for (std::size_t at = 0; at < text.size();) {
        wchar_t c = 0;
        const auto length = std::mbrtowc (&c, text.data() + at, text.size() - at, &state);
        const bool isValid = length > 0 && length < static_cast<std::size_t> (-2);
        result += isValid ? c : L'?';
        at += isValid ? length : 1;
        if (! isValid)
            state = {};
    }
    return result;
}

std::string narrow (const wchar_t* text, std::size_t length)
{
    std::string result;
    std::mbstate_t state{};
    for (std::size_t i = 0; i < length; ++i) {
        char bytes[16]; // longer than any locale's longest character
        const auto size = std::wcrtomb (bytes, text[i], &state);
        if (size == static_cast<std::size_t> (-1))
            state = {};
        else
            result.append (bytes, size);
    }
    return result;
}

std::string commonStart (const std::vector<std::string>& words)
{
    auto start = words.front();
    for (const auto& word : words)
        while (word.compare (0, start.size(), start) != 0)
            start.pop_back();
    return start;
}

/** The word as typed: blanks, quotes and backslashes are escaped. */
std::string escaped (const std::string& word)
{
    std::string result;
    for (const char c : word) {
        if (std::strchr (" \t\"\\", c) != nullptr)
            result += '\\';
        result += c;
    }
    return result;
}

std::string inColumns (const std::vector<std::string>& words, std::size_t width)
{
    std::size_t widest = 1;
    for (const auto& word : words)
        widest = std::max (widest, word.size() + 2);
    const auto columns = std::max<std::size_t> (1, width / widest);
    const auto rows = (words.size() + columns - 1) / columns;
    std::string text;
    for (std::size_t row = 0; row < rows; ++row) {
        std::string line;
        for (auto i = row; i < words.size(); i += rows)
            line += words[i] + std::string (i + rows < words.size() ? widest - words[i].size() : 0, ' ');
        text += line + "\n";
    }
    return text;
}

std::string historyFile()
{
    const auto* home = std::getenv ("HOME");
    return home == nullptr || *home == 0 ? std::string() : std::string (home) + "/.patchbench_history";
}

/** The history of lines, stored in the user's home folder. */
class History
{
public:
    History() : history (history_winit())
    {
        constexpr int most = 1000;
        HistEventW event;
        history_w (history, &event, H_SETSIZE, most);
        history_w (history, &event, H_SETUNIQUE, 1);
        if (! file.empty())
            history_w (history, &event, H_LOAD, file.c_str());
    }
    ~History() { history_wend (history); }
    History (const History&) = delete;
    History& operator= (const History&) = delete;

    /** Saved at once, so that nothing is lost if the program crashes. */
    void add (const wchar_t* line)
    {
        HistEventW event;
        history_w (history, &event, H_ENTER, line);
        if (file.empty() || history_w (history, &event, H_SAVE, file.c_str()) != -1)
            return;
        std::cerr << "patchbench: the history cannot be written to " << file << std::endl;
        file.clear(); // report only once
    }

    HistoryW* get() const { return history; }

private:
    HistoryW* const history;
    std::string file = historyFile();
};

/** A line editor on the terminal. The bench keeps running while it waits for a key; output appears above the line being
    edited. */
class Prompt
{
public:
    explicit Prompt (Session& s)
        : session (s),
          screen (isatty (STDOUT_FILENO) != 0 ? stdout : stderr),
          editor (el_init ("patchbench", stdin, screen, stderr))
    {
        el_wset (editor, EL_CLIENTDATA, this);
        el_wset (editor, EL_PROMPT, &Prompt::text);
        el_wset (editor, EL_EDITOR, L"emacs");
        el_wset (editor, EL_HIST, history_w, history.get());
        el_wset (editor, EL_GETCFN, &Prompt::readKey);
        el_wset (editor, EL_ADDFN, L"patchbench-complete", L"completes a word", &Prompt::completeWord);
        el_wset (editor, EL_BIND, L"^I", L"patchbench-complete", nullptr);
        el_wset (editor, EL_SIGNAL, 0);
        Session::setPrinter ([this] (const std::string& line) { take (line); });
    }

    ~Prompt()
    {
        Session::setPrinter (nullptr);
        el_end (editor);
    }

    Prompt (const Prompt&) = delete;
    Prompt& operator= (const Prompt&) = delete;

    void run (const std::function<void (const std::string&)>& runLine)
    {
        el_wset (editor, EL_PREP_TERM, 1); // the editor does this only after it has shown the prompt
        while (! session.isOver() && endings == 0) {
            int length = 0;
            isEditing = true;
            const auto* line = el_wgets (editor, &length);
            isEditing = false;
            writePending();
            // Keys typed while a command runs are kept for the editor; the terminal must not echo them.
            el_wset (editor, EL_PREP_TERM, 1);
            if (line == nullptr || length <= 0) {
                std::fputs (interruptions != 0 ? "^C\n" : "\n", screen);
                if (interruptions == 0)
                    return;
                interruptions = 0;
                Session::interrupt (false);
                continue;
            }
            runTyped (narrow (line, static_cast<std::size_t> (length)), line, runLine);
        }
    }

private:
    void runTyped (std::string line, const wchar_t* typed, const std::function<void (const std::string&)>& runLine)
    {
        while (! line.empty() && (line.back() == '\n' || line.back() == '\r'))
            line.pop_back();
        if (line.find_first_not_of (" \t") != std::string::npos)
            history.add (typed);
        runLine (line);
        interruptions = 0;
        Session::interrupt (endings != 0);
    }

    static Prompt& of (EditLine* editor)
    {
        void* prompt = nullptr;
        el_wget (editor, EL_CLIENTDATA, &prompt);
        return *static_cast<Prompt*> (prompt);
    }

    static wchar_t* text (EditLine*)
    {
        static wchar_t prompt[] = L"> ";
        return prompt;
    }

    /** Any thread. */
    void take (const std::string& line)
    {
        if (! isEditing) {
            std::cout << line + '\n' << std::flush;
            return;
        }
        const std::lock_guard<std::mutex> lock (mutex);
        pending += line + '\n';
    }

    /** Writes lines that arrived since the last call, above the line being edited. */
    void writePending()
    {
        std::string lines;
        {
            const std::lock_guard<std::mutex> lock (mutex);
            lines.swap (pending);
        }
        if (lines.empty())
            return;
        if (isEditing)
            eraseTyped();
        std::cout << lines << std::flush;
        if (isEditing)
            el_wset (editor, EL_REFRESH);
    }

    [[nodiscard]] int columns() const
    {
        int number = 0;
        return el_wget (editor, EL_GETTC, "co", &number) == 0 && number > 0 ? number : 80;
    }

    /** Erases the prompt and the typed line from the screen. */
    void eraseTyped()
    {
        const auto* line = el_wline (editor);
        int cells = static_cast<int> (std::wcslen (text (editor)));
        for (const auto* c = line->buffer; c < line->cursor; ++c)
            cells += std::max (1, wcwidth (*c));
        if (const int rows = cells / columns(); rows > 0)
            std::fprintf (screen, "\x1b[%dA", rows);
        std::fputs ("\r\x1b[J", screen);
        std::fflush (screen);
    }

    static int readKey (EditLine* editor, wchar_t* key)
    {
        auto& prompt = of (editor);
        *key = 0;
        std::string bytes;
        while (true) {
            prompt.waitForByte();
            if (endings != 0)
                return 0;
            if (interruptions != 0) {
                errno = EINTR;
                return -1; // the editor discards the line and starts over
            }
            char byte = 0;
            const auto count = read (STDIN_FILENO, &byte, 1);
            if (count < 0 && (errno == EINTR || errno == EAGAIN))
                continue;
            if (count <= 0)
                return 0;
            bytes += byte;
            std::mbstate_t state{};
            const auto length = std::mbrtowc (key, bytes.data(), bytes.size(), &state);
            if (length <= bytes.size())
                return 1;
            if (length == static_cast<std::size_t> (-1))
                bytes.clear(); // invalid character: skipped
        }
    }

    void waitForByte()
    {
        session.bench.waitFor (bench::Bench::forEver, STDIN_FILENO, [this] {
            writePending();
            if (std::exchange (sizeChanges, 0) != 0)
                el_resize (editor);
            if (std::exchange (resumptions, 0) != 0) {
                el_wset (editor, EL_PREP_TERM, 0);
                el_wset (editor, EL_PREP_TERM, 1);
                el_wset (editor, EL_REFRESH);
            }
            return interruptions == 0 && endings == 0;
        });
    }

    static unsigned char completeWord (EditLine* editor, int)
    {
        auto& prompt = of (editor);
        const auto* typed = el_wline (editor);
        const auto line = narrow (typed->buffer, static_cast<std::size_t> (typed->cursor - typed->buffer));
        const auto words = completionsOf (prompt.session, line);
        if (words.empty())
            return CC_REFRESH_BEEP;
        const auto start = startOfLastWord (line);
        const auto begun = line.substr (start);
        auto completed = escaped (commonStart (words));
        if (words.size() == 1 && completed.back() != '/')
            completed += ' ';
        if (completed.size() > begun.size()) {
            el_deletestr (editor, static_cast<int> (wide (begun).size()));
            el_winsertstr (editor, wide (completed).c_str());
            return CC_REFRESH;
        }
        if (words.size() == 1)
            return CC_NORM;
        auto list = inColumns (words, static_cast<std::size_t> (prompt.columns()));
        list.pop_back(); // take() ends the line
        prompt.take ("> " + narrow (typed->buffer, static_cast<std::size_t> (typed->lastchar - typed->buffer)) + "\n" +
                     list);
        prompt.writePending();
        return CC_NORM;
    }

    Session& session;
    FILE* const screen;
    History history;
    EditLine* const editor;
    std::mutex mutex;
    std::string pending; // printed lines not yet on the screen
    std::atomic<bool> isEditing{ false };
};
}

bool isInteractive() { return isatty (STDIN_FILENO) != 0; }

void runPrompt (Session& session, const std::function<void (const std::string& line)>& runLine)
{
    if (std::setlocale (LC_CTYPE, "") == nullptr || MB_CUR_MAX == 1)
        std::setlocale (LC_CTYPE, "C.UTF-8");
    const Signals signals;
    Prompt (session).run (runLine);
    std::cout.flush();
}

}
