#pragma once
#include <optional>
#include <string>

namespace bench
{

/** Answers the next unanswered dialog; nothing means "cancel", the default. */
void addDialogAnswer (std::optional<std::string> path);
void forgetDialogAnswers();

/** Base of relative names; the process's folder if not set. */
void setBaseFolder (const std::string& path);

}
