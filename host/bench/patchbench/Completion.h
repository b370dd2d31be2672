#pragma once
#include "host/bench/patchbench/Session.h"
#include <string>
#include <vector>

namespace patchbench
{

/** Completions of a line's last word, in alphabetical order: a verb, an object's name, a class, a message or its words,
    an attribute or its choices, a file. */
std::vector<std::string> completionsOf (Session& session, const std::string& line);

/** Where the line's last word starts, quotes and backslashes included; the line's length after a blank. */
std::size_t startOfLastWord (const std::string& line);

}
