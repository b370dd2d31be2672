#include "host/bench/patchbench/Advice.h"
#include "host/bench/Inspect.h"
#include "host/bench/patchbench/Commands.h"
#include <algorithm>
#include <numeric>
#include <utility>

namespace patchbench
{

namespace
{
/** Edit distance: insertions, deletions, replacements and swaps of neighbours. */
std::size_t distance (const std::string& a, const std::string& b)
{
    std::vector<std::size_t> beforeLast, last (b.size() + 1), row (b.size() + 1);
    std::iota (last.begin(), last.end(), std::size_t{ 0 });
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min ({ last[j] + 1, row[j - 1] + 1, replaced });
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min (row[j], beforeLast[j - 2] + 1);
        }
        beforeLast = std::exchange (last, row);
    }
    return last.back();
}

bool understands (const bench::Box& box, const std::string& word)
{
    for (const auto& row : bench::methodsOf (box))
        if (row.message == word)
            return true;
    const auto attributes = bench::visibleAttributes (box);
    return std::any_of (attributes.begin(), attributes.end(),
                        [&] (const auto& name) { return word == name || word == "get" + name; });
}
}

std::string shortened (const std::string& word)
{
    constexpr std::size_t most = 60;
    return word.size() <= most ? word : word.substr (0, most) + "...";
}

std::string adviceFor (Session& session, const std::vector<bench::Word>& words)
{
    const auto& word = words.front().text;
    const auto names = session.bench.names();
    for (const auto& name : names)
        if (understands (*session.bench.find (name), word))
            return std::string ("; a message needs its receiver: send ")
                .append (name)
                .append (" ")
                .append (word)
                .append (words.size() > 1 ? " ..." : "");
    if (session.bench.find (word) != nullptr)
        return "; \"" + word + "\" is a box: send " + word + " MESSAGE";

    const Command* nearest = nullptr;
    std::size_t closest = word.size() > 4 ? 3 : 2; // must be closer than this
    for (const auto& command : allCommands())
        if (word.size() < 20 && distance (word, command.verb) < closest) {
            closest = distance (word, command.verb);
            nearest = findCommand (command.verb);
        }
    return nearest == nullptr ? "" : std::string ("; did you mean ") + nearest->verb + "?";
}

}
