#pragma once
#include <string>

/** The messages that read or write a file: in Pd a relative name refers to the patch's folder, and without a name
    a panel asks for one. */
namespace pdhost
{

struct FileMessage
{
    const char* selector;
    bool writes;
};

/** The row of a message; null if it has to do with no file. */
const FileMessage* fileMessage (const char* selector);

/** The path of a file that is named relative to a folder. The word "none" names no file and stays. */
std::string pathIn (const std::string& folder, const std::string& name);

}
