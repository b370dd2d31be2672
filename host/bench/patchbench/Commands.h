#pragma once
#include "host/bench/patchbench/Session.h"
#include <limits>
#include <vector>

namespace patchbench
{

/** A command of the language. To add one: write its function in one of the Commands files and add a row to that file's
    table; `help`, completion and docs/bench.md read it from there. */
struct Command
{
    const char* verb;
    std::size_t fewest; // words after the verb
    std::size_t most;
    const char* usage; // words in capitals are placeholders; | separates choices
    const char* summary;
    const char* example; // a complete line for a box "verb" of class halcyra~.control
    void (*run) (Session& session, const std::vector<bench::Word>& words);
};

constexpr auto anyNumber = std::numeric_limits<std::size_t>::max();

/** One table per area. */
const std::vector<Command>& patchCommands();      // boxes, cords, messages, time
const std::vector<Command>& inspectionCommands(); // queries on boxes and dictionaries
const std::vector<Command>& windowCommands();
const std::vector<Command>& helpCommands();

/** All rows; null for an unknown verb. */
std::vector<Command> allCommands();
const Command* findCommand (const std::string& verb);

/** Parses an integer argument; throws a CommandError that names it. */
long long wholeNumber (const bench::Word& word, const char* what);
double number (const bench::Word& word, const char* what);

}
