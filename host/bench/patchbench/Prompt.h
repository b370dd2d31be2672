#pragma once
#include "host/bench/patchbench/Session.h"
#include <functional>
#include <string>

namespace patchbench
{

/** Reads lines from a terminal until the session or the input ends, pumping while it waits. */
void runPrompt (Session& session, const std::function<void (const std::string& line)>& runLine);

/** Whether standard input is a terminal. */
bool isInteractive();

}
