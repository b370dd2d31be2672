#pragma once
#include <optional>
#include <string>

namespace bench
{

/** The answer of the next dialog that has none yet; nothing is "cancel". Unanswered dialogs are cancelled. */
void addDialogAnswer (std::optional<std::string> path);
void forgetDialogAnswers();

/** Relative names refer to this folder; without one, to the process's. */
void setBaseFolder (const std::string& path);

}
