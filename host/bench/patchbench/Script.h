#pragma once
#include <string>

/** Helpers for script text: recognising scripts and echoing their lines. */
namespace patchbench
{

/** Why a file cannot be a script, judged by its kind and name; empty if it may be one. */
std::string complaintAbout (const std::string& file);

/** Removes a byte order mark from a script's first line; returns a complaint for an unsupported one. */
std::string removeByteOrderMark (std::string& line);

/** False for a line with null bytes. */
bool isText (const std::string& line);

/** "> COMMAND", as at the prompt; comments and blank lines unchanged. */
std::string echoOf (const std::string& line);

}
