#pragma once
#include "host/bench/patchbench/Session.h"
#include <functional>
#include <string>

namespace patchbench
{

/** Reads lines from a person at a terminal until the session or the input is over, pumping while it waits. */
void runPrompt (Session& session, const std::function<void (const std::string& line)>& runLine);

/** True if somebody sits before standard input. */
bool isInteractive();

}
