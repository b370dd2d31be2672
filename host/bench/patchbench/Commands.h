#pragma once
#include "host/bench/patchbench/Session.h"
#include <limits>
#include <vector>

namespace patchbench
{

/** A row of the language. To add a command: write its function in one of the Commands files and add the row to that
    file's table; `help`, completion and docs/bench.md read it there. */
struct Command
{
    const char* verb;
    std::size_t fewest; // words behind the verb
    std::size_t most;
    const char* usage; // words in capitals stand for something; | separates choices
    const char* summary;
    const char* example; // a whole line that works with a box "verb" of the class halcyra~.control
    void (*run) (Session& session, const std::vector<bench::Word>& words);
};

constexpr auto anyNumber = std::numeric_limits<std::size_t>::max();

/** The tables, each of one area. */
const std::vector<Command>& patchCommands();      // boxes, cords, messages, time
const std::vector<Command>& inspectionCommands(); // questions to boxes and dictionaries
const std::vector<Command>& windowCommands();
const std::vector<Command>& helpCommands();

/** All rows; null for a verb that nobody knows. */
std::vector<Command> allCommands();
const Command* findCommand (const std::string& verb);

/** A number as an argument of a command, or a CommandError that names it. */
long long wholeNumber (const bench::Word& word, const char* what);
double number (const bench::Word& word, const char* what);

}
