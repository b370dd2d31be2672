#pragma once
#include <string>

/** The text of scripts: what is one, and what it looks like when it is echoed. */
namespace patchbench
{

/** Why a file cannot be played, judged by its kind and its name; empty if it can be tried. */
std::string complaintAbout (const std::string& file);

/** Takes a byte order mark off the first line of a script; returns a complaint if there was one. */
std::string removeByteOrderMark (std::string& line);

/** False for a line with zero bytes, which no text holds. */
bool isText (const std::string& line);

/** "> COMMAND", as at the prompt; comments and blank lines as they stand. */
std::string echoOf (const std::string& line);

}
