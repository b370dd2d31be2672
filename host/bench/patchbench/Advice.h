#pragma once
#include "host/bench/patchbench/Session.h"
#include <string>
#include <vector>

namespace patchbench
{

/** A hint for a line whose first word is no command: the message with its `send`, or the command that was probably
    meant. Empty if nothing comes near; otherwise begins with a separator. */
std::string adviceFor (Session& session, const std::vector<bench::Word>& words);

/** The word itself, or the beginning of a very long one, to be quoted in a complaint. */
std::string shortened (const std::string& word);

}
