#pragma once
#include "host/bench/patchbench/Session.h"
#include <string>
#include <vector>

namespace patchbench
{

/** A hint for a line whose first word is not a command: the message with its `send`, or the command probably meant.
    Empty if nothing is close; otherwise begins with a separator. */
std::string adviceFor (Session& session, const std::vector<bench::Word>& words);

/** The word, truncated if very long, to quote in a complaint. */
std::string shortened (const std::string& word);

}
