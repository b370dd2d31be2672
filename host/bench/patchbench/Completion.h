#pragma once
#include "host/bench/patchbench/Session.h"
#include <string>
#include <vector>

namespace patchbench
{

/** What can stand at the end of a line that was typed so far, in alphabetical order: a verb, the name of an object,
    a message or an attribute. The last word of the line is the beginning of it. */
std::vector<std::string> completionsOf (Session& session, const std::string& line);

}
