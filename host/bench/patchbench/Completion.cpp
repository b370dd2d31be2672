#include "host/bench/patchbench/Completion.h"
#include "host/bench/Inspect.h"
#include "host/bench/patchbench/Commands.h"
#include <algorithm>
#include <cstring>

namespace patchbench
{

namespace
{
/** What a word of the usage stands for: "NAME", "MESSAGE", "ATTRIBUTE", or a choice "main|scheduler". */
std::string kindAt (const Command& command, std::size_t index)
{
    const auto usage = bench::wordsOf (command.usage);
    return index < usage.size() ? usage[index].text : std::string();
}

std::vector<std::string> split (const std::string& text, char separator)
{
    std::vector<std::string> parts (1);
    for (const char c : text) {
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
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
    all.insert (all.end(), attributes.begin(), attributes.end());
    return all;
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
    const bool isNew = words[0].text == "new";
    if ((kind == "NAME" && ! isNew) || kind == "NAME2")
        return session.bench.names();
    const auto* box = index > 1 ? session.bench.find (words[1].text) : nullptr;
    if (kind == "MESSAGE")
        return messagesAndAttributes (box);
    if (kind == "ATTRIBUTE")
        return box == nullptr ? std::vector<std::string>{} : bench::visibleAttributes (*box);
    return kind.find ('|') == std::string::npos ? std::vector<std::string>{} : split (kind, '|');
}
}

std::vector<std::string> completionsOf (Session& session, const std::string& line)
{
    auto words = bench::wordsOf (line);
    if (line.empty() || line.back() == ' ')
        words.emplace_back();
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
