#pragma once
#include "host/bench/patchbench/Session.h"
#include <string>
#include <vector>

namespace patchbench
{

/** What can stand at the end of a line that was typed so far, in alphabetical order: a verb, the name of an object,
    a class, a message or its words, an attribute or its choices, a file. The last word of the line is the beginning of it. */
std::vector<std::string> completionsOf (Session& session, const std::string& line);

/** Where the last word of a line starts, quotes and backslashes included; the length of the line behind a blank. */
std::size_t startOfLastWord (const std::string& line);

}
