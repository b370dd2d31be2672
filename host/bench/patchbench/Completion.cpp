#include "host/bench/patchbench/Completion.h"
#include "host/bench/Inspect.h"
#include "host/bench/patchbench/Commands.h"
#include <algorithm>
#include <cstring>
#include <filesystem>

namespace patchbench
{

namespace
{
/** The kind of a word in the usage: "NAME", "MESSAGE", "ATTRIBUTE", or a choice "main|scheduler". */
std::string kindAt (const Command& command, std::size_t index)
{
    const auto usage = bench::wordsOf (command.usage);
    return index < usage.size() ? usage[index].text : std::string();
}

std::vector<std::string> choices (const std::string& word)
{
    return word.find ('|') == std::string::npos ? std::vector<std::string>{} : split (word, "|");
}

/** The usage's optional literal words, such as "[shift]". */
std::vector<std::string> optionalWords (const Command& command)
{
    std::vector<std::string> words;
    for (const auto& word : bench::wordsOf (command.usage)) {
        const auto inner = word.text.size() > 2 ? word.text.substr (1, word.text.size() - 2) : std::string();
        if (word.text.front() == '[' &&
            std::all_of (inner.begin(), inner.end(), [] (char c) { return c >= 'a' && c <= 'z'; }))
            words.push_back (inner);
    }
    return words;
}

std::vector<std::string> attributesOfClass (Session& session, const std::string& className)
{
    session.load (className);
    return bench::visibleAttributes (className);
}

std::vector<std::string> withStart (const std::string& start, std::vector<std::string> words)
{
    for (auto& word : words)
        word.insert (0, start);
    return words;
}

std::vector<std::string> together (std::vector<std::string> words, const std::vector<std::string>& more)
{
    words.insert (words.end(), more.begin(), more.end());
    return words;
}

std::vector<std::string> messagesAndAttributes (const bench::Box* box)
{
    std::vector<std::string> all;
    if (box == nullptr)
        return all;
    for (const auto& row : bench::methodsOf (*box))
        if (row.kinds.empty() || row.kinds.front() != "A_CANT")
            all.push_back (row.message);
    const auto attributes = bench::visibleAttributes (*box);
    return together (together (std::move (all), attributes), withStart ("get", attributes));
}

/** Files and folders that complete a path; folders end in a slash. */
std::vector<std::string> files (const std::string& begun)
{
    namespace fs = std::filesystem;
    const auto slash = begun.rfind ('/');
    const auto folder = slash == std::string::npos ? std::string() : begun.substr (0, slash + 1);
    std::vector<std::string> found;
    std::error_code ignored;
    for (fs::directory_iterator entry (fs::u8path (folder.empty() ? "." : folder), ignored), end; entry != end;
         entry.increment (ignored)) {
        const auto name = entry->path().filename().u8string();
        if (name.front() != '.')
            found.push_back (folder + name + (entry->is_directory (ignored) ? "/" : ""));
    }
    return found;
}

/** Candidates from a message's forms at a position, given the words before it. */
std::vector<std::string> wordsOfForms (const MessageForms& forms, const std::vector<bench::Word>& words,
                                       std::size_t message)
{
    std::vector<std::string> found;
    for (const auto& row : forms) {
        const auto pattern = split (row.form, " ");
        const auto last = words.size() - 1 - message;
        if (last >= pattern.size() || pattern[0] != words[message].text)
            continue;
        bool fits = true;
        for (std::size_t i = 1; i < last && fits; ++i) {
            const auto allowed = split (pattern[i], "|");
            const bool isPlaceholder =
                allowed.size() == 1 && pattern[i].find_first_of ("abcdefghijklmnopqrstuvwxyz") == std::string::npos;
            fits =
                isPlaceholder || std::find (allowed.begin(), allowed.end(), words[message + i].text) != allowed.end();
        }
        if (! fits)
            continue;
        if (pattern[last] == "FILE")
            found = together (std::move (found), files (words.back().text));
        else if (pattern[last] != "FILE" &&
                 pattern[last].find_first_of ("abcdefghijklmnopqrstuvwxyz") != std::string::npos)
            found = together (std::move (found), split (pattern[last], "|"));
    }
    return found;
}

/** Candidates after a message or an attribute sent to a box. */
std::vector<std::string> values (Session& session, const std::vector<bench::Word>& words, const bench::Box* box)
{
    constexpr std::size_t message = 2;
    const auto& forms = session.externals().forms;
    const auto& name = words[message].text;
    if (box == nullptr)
        return {};
    if (std::any_of (forms.begin(), forms.end(), [&] (const auto& row) {
            return row.message() == name && row.form.find ("ATTRIBUTE") != std::string::npos;
        }))
        return bench::visibleAttributes (*box);
    const auto style = bench::propertyOf (*box, name, "style");
    if (style && bench::textOf (*style) == "file")
        return files (words.back().text);
    return together (wordsOfForms (forms, words, message),
                     bench::choicesOf (object_classname (box->object)->s_name, name));
}

std::vector<std::string> helpTopics (Session& session)
{
    std::vector<std::string> topics;
    for (const auto& command : allCommands())
        topics.emplace_back (command.verb);
    for (const auto& row : session.externals().forms)
        topics.push_back (row.message());
    return topics;
}

std::vector<std::string> wordsOfNew (Session& session, const std::vector<bench::Word>& words, std::size_t index)
{
    constexpr std::size_t className = 2;
    if (index == className)
        return session.externals().names ? session.externals().names() : std::vector<std::string>{};
    const auto& before = words[index - 1].text;
    if (before.size() > 1 && before.front() == '@') {
        session.load (words[className].text);
        auto found = bench::choicesOf (words[className].text, before.substr (1));
        if (! found.empty())
            return found;
    }
    return withStart ("@", attributesOfClass (session, words[className].text));
}

std::vector<std::string> candidates (Session& session, const std::vector<bench::Word>& words, std::size_t index)
{
    if (index == 0) {
        std::vector<std::string> verbs;
        for (const auto& command : allCommands())
            verbs.emplace_back (command.verb);
        return verbs;
    }
    const auto* command = findCommand (words[0].text);
    if (command == nullptr)
        return {};
    const auto kind = kindAt (*command, index);
    if (words[0].text == "new")
        return index == 1 ? std::vector<std::string>{} : wordsOfNew (session, words, index);
    if (words[0].text == "help")
        return helpTopics (session);
    if (kind == "NAME" || kind == "NAME2")
        return session.bench.names();
    const auto* box = index > 1 ? session.bench.find (words[1].text) : nullptr;
    if (kind == "MESSAGE")
        return messagesAndAttributes (box);
    if (words[0].text == "send" && index > 2)
        return values (session, words, box);
    if (kind == "ATTRIBUTE")
        return box == nullptr ? std::vector<std::string>{} : bench::visibleAttributes (*box);
    if (kind == "FILE")
        return files (words.back().text);
    if (kind == "PATH|cancel")
        return together (files (words.back().text), { "cancel" });
    const auto found = choices (kind);
    return found.empty() ? optionalWords (*command) : found;
}
}

std::size_t startOfLastWord (const std::string& line)
{
    std::size_t start = 0;
    bool inQuotes = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '\\')
            ++at;
        else if (line[at] == '"')
            inQuotes = ! inQuotes;
        else if ((line[at] == ' ' || line[at] == '\t') && ! inQuotes)
            start = at + 1;
    }
    return start;
}

std::vector<std::string> completionsOf (Session& session, const std::string& line)
{
    const auto start = startOfLastWord (line);
    auto words = bench::wordsOf (line.substr (0, start));
    const auto last = bench::wordsOf (line.substr (start));
    words.push_back (last.empty() ? bench::Word() : last.front());
    const auto begun = words.back().text;
    auto found = candidates (session, words, words.size() - 1);
    found.erase (std::remove_if (found.begin(), found.end(),
                                 [&] (const std::string& text) { return text.compare (0, begun.size(), begun) != 0; }),
                 found.end());
    std::sort (found.begin(), found.end());
    found.erase (std::unique (found.begin(), found.end()), found.end());
    return found;
}

}
